#include "ui/rendering.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vantor {

namespace {

template <class Matches>
int count(const QImage& image, const QRectF& area, Matches&& matches) {
    const double scale = image.devicePixelRatio();
    const QRect pixels =
        QRectF(area.topLeft() * scale, area.size() * scale).toRect().intersected(image.rect());
    int found = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (matches(image.pixelColor(x, y))) ++found;
        }
    }
    return found;
}

}  // namespace

QPalette paletteOf(ColorScheme scheme) {
    if (hasHighContrast(scheme)) {
        const QColor ground = isDark(scheme) ? Qt::black : Qt::white;
        const QColor label = isDark(scheme) ? Qt::white : Qt::black;
        QPalette palette(label, ground, label, label, label, label, label, ground, ground);
        palette.setColor(QPalette::PlaceholderText, label);
        return palette;
    }
    const bool dark = scheme == ColorScheme::dark;
    QPalette palette(dark ? QColor(40, 44, 54) : QColor(230, 234, 242),
                     dark ? QColor(14, 17, 24) : QColor(240, 243, 250));
    palette.setColor(QPalette::Highlight, VantorTheme::blue());
    return palette;
}

QImage rendered(QWidget& widget, QSize size, ColorScheme scheme, double scale) {
    widget.setPalette(paletteOf(scheme));
    widget.resize(size);
    QImage image(QSize(static_cast<int>(std::ceil(size.width() * scale)),
                       static_cast<int>(std::ceil(size.height() * scale))),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QColor colorAt(const QImage& image, double x, double y) {
    const double scale = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
}

int paintedPixels(const QImage& image, const QRectF& area) {
    return count(image, area, [](const QColor& color) { return color.alpha() > 0; });
}

int pixelsLike(const QImage& image, const QRectF& area, const QColor& color) {
    return count(image, area, [&](const QColor& found) { return isNear(found, color, 4); });
}

bool isNear(const QColor& one, const QColor& other, int tolerance) {
    // As they are stored: the fainter a colour, the less is left of its hue.
    const QRgb a = qPremultiply(one.rgba());
    const QRgb b = qPremultiply(other.rgba());
    const auto differs = [tolerance](int x, int y) { return std::abs(x - y) > tolerance; };
    return !differs(qRed(a), qRed(b)) && !differs(qGreen(a), qGreen(b)) &&
           !differs(qBlue(a), qBlue(b)) && !differs(qAlpha(a), qAlpha(b));
}

void settleEvents() {
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

}  // namespace vantor
