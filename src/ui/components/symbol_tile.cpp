#include "ui/components/symbol_tile.h"

#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"

namespace vantor::SymbolTile {

namespace {

constexpr double groundOpacity = 0.14;

}  // namespace

void paint(QPainter& painter, const QRectF& area, const Shape& shape, const QString& symbol,
           const QColor& color) {
    const QRectF ground = Pixels::snapped(painter, area);
    const double scale = ground.width() / shape.side;
    QPainterPath tile;
    tile.addRoundedRect(ground, shape.corner * scale, shape.corner * scale);
    vantorBackground(painter, VantorTheme::faded(color, groundOpacity), tile);
    const double inset = (shape.side - shape.symbol) / 2 * scale;
    Symbols::draw(painter, ground.adjusted(inset, inset, -inset, -inset), symbol, color);
}

}  // namespace vantor::SymbolTile
