#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <ostream>
#include <string>

#include "ui/theme.h"

// What a failed comparison prints.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QColor& color, std::ostream* out) {
    *out << color.name(QColor::HexArgb).toStdString();
}
inline void PrintTo(const QRectF& area, std::ostream* out) {
    *out << area.x() << ',' << area.y() << ' ' << area.width() << 'x' << area.height();
}
inline void PrintTo(const QPointF& place, std::ostream* out) {
    *out << place.x() << ',' << place.y();
}

namespace vantor {

/// Dark or light and nothing in between, so that a widget takes the scheme from it.
QPalette paletteOf(ColorScheme scheme);

/// `widget` as it paints itself at `scale` device pixels per point, over nothing: what it leaves
/// unpainted stays transparent.
QImage rendered(QWidget& widget, QSize size, ColorScheme scheme = ColorScheme::dark,
                double scale = 1);

/// The colour at a place given in points.
QColor colorAt(const QImage& image, double x, double y);

/// How many device pixels in `area`, given in points, are painted at all.
int paintedPixels(const QImage& image, const QRectF& area);

/// How many have (nearly) that colour, opacity included.
int pixelsLike(const QImage& image, const QRectF& area, const QColor& color);

/// Whether two colours differ by no more than rounding does.
bool isNear(const QColor& one, const QColor& other, int tolerance = 3);

/// Runs everything that is posted, and what that posts.
void settleEvents();

inline std::string utf8(const QString& text) {
    return text.toStdString();
}

}  // namespace vantor
