#pragma once

#include <QColor>
#include <QPainter>
#include <QString>

/// A symbol on a faint square of its own colour.
namespace vantor::SymbolTile {

/// For a system font of the reference size.
struct Shape {
    double side;
    double corner;
    double symbol;  ///< how large the symbol is
};

/// Paints the tile over `area`, which is as large as the shape or a multiple of it.
void paint(QPainter& painter, const QRectF& area, const Shape& shape, const QString& symbol,
           const QColor& color);

/// Paints the product's own tile: its symbol, white on a gradient from cyan to purple.
void paintProduct(QPainter& painter, const QRectF& area, const Shape& shape);

}  // namespace vantor::SymbolTile
