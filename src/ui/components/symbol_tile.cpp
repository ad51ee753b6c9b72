#include "ui/components/symbol_tile.h"

#include <QLinearGradient>

#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"

namespace vantor::SymbolTile {

namespace {

constexpr double symbolTileGroundOpacity = 0.14;

void paintOn(QPainter& painter, const QRectF& background, const QBrush& fill,
             const SymbolTile::Shape& shape, const QString& symbol, const QColor& color) {
    const double scale = background.width() / shape.side;
    QPainterPath tile;
    tile.addRoundedRect(background, shape.corner * scale, shape.corner * scale);
    painter.fillPath(tile, fill);
    const double inset = (shape.side - shape.symbol) / 2 * scale;
    Symbols::draw(painter, background.adjusted(inset, inset, -inset, -inset), symbol, color);
}

}  // namespace

void paint(QPainter& painter, const QRectF& area, const Shape& shape, const QString& symbol,
           const QColor& color) {
    const QRectF background = Pixels::snapped(painter, area);
    paintOn(painter, background, VantorTheme::faded(color, symbolTileGroundOpacity), shape, symbol,
            color);
}

void paintProduct(QPainter& painter, const QRectF& area, const Shape& shape) {
    const QRectF background = Pixels::snapped(painter, area);
    QLinearGradient gradient(background.topLeft(), background.bottomRight());
    gradient.setColorAt(0, VantorTheme::cyan());
    gradient.setColorAt(1, VantorTheme::purple());
    paintOn(painter, background, gradient, shape, QStringLiteral("waveform.path.ecg"), Qt::white);
}

}  // namespace vantor::SymbolTile
