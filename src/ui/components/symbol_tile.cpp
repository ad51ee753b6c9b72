#include "ui/components/symbol_tile.h"

#include <QLinearGradient>

#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"

namespace vantor::SymbolTile {

namespace {

constexpr double symbolTileGroundOpacity = 0.14;

void paintOn(QPainter& painter, const QRectF& ground, const QBrush& fill,
             const SymbolTile::Shape& shape, const QString& symbol, const QColor& color) {
    const double scale = ground.width() / shape.side;
    QPainterPath tile;
    tile.addRoundedRect(ground, shape.corner * scale, shape.corner * scale);
    painter.fillPath(tile, fill);
    const double inset = (shape.side - shape.symbol) / 2 * scale;
    Symbols::draw(painter, ground.adjusted(inset, inset, -inset, -inset), symbol, color);
}

}  // namespace

void paint(QPainter& painter, const QRectF& area, const Shape& shape, const QString& symbol,
           const QColor& color) {
    const QRectF ground = Pixels::snapped(painter, area);
    paintOn(painter, ground, VantorTheme::faded(color, symbolTileGroundOpacity), shape, symbol,
            color);
}

void paintProduct(QPainter& painter, const QRectF& area, const Shape& shape) {
    const QRectF ground = Pixels::snapped(painter, area);
    QLinearGradient gradient(ground.topLeft(), ground.bottomRight());
    gradient.setColorAt(0, VantorTheme::cyan());
    gradient.setColorAt(1, VantorTheme::purple());
    paintOn(painter, ground, gradient, shape, QStringLiteral("waveform.path.ecg"), Qt::white);
}

}  // namespace vantor::SymbolTile
