#include "ui/theme.h"

#include <QFormLayout>
#include <QPalette>
#include <QWidget>

#include <cmath>

namespace vantor {

namespace {

QColor rgb(double red, double green, double blue, double opacity = 1) {
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                            static_cast<float>(blue), static_cast<float>(opacity));
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

}  // namespace

bool isDark(ColorScheme scheme) {
    return scheme == ColorScheme::dark || scheme == ColorScheme::highContrastDark;
}

bool hasHighContrast(ColorScheme scheme) {
    return scheme == ColorScheme::highContrastDark || scheme == ColorScheme::highContrastLight;
}

ColorScheme colorScheme(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const bool isDark = window.lightnessF() < 0.5f;
    const QRgb ground = isDark ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
    const QRgb text = isDark ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
    if (window.rgba() == ground && palette.color(QPalette::WindowText).rgba() == text &&
        palette.color(QPalette::PlaceholderText).rgba() == text)
        return isDark ? ColorScheme::highContrastDark : ColorScheme::highContrastLight;
    return isDark ? ColorScheme::dark : ColorScheme::light;
}

ColorScheme colorScheme(const QWidget& widget) {
    return colorScheme(widget.palette());
}

namespace VantorTheme {

QColor cyan() {
    return rgb(0.15, 0.78, 1.0);
}
QColor blue() {
    return rgb(0.2, 0.46, 1.0);
}
QColor purple() {
    return rgb(0.68, 0.35, 1.0);
}
QColor pink() {
    return rgb(1.0, 0.28, 0.57);
}
QColor green() {
    return rgb(0.18, 0.88, 0.57);
}
QColor orange() {
    return rgb(1.0, 0.58, 0.22);
}
QColor red() {
    return rgb(1.0, 0.3, 0.31);
}

QLinearGradient background(ColorScheme scheme, const QRectF& area) {
    QLinearGradient gradient(area.topLeft(), area.bottomRight());
    if (hasHighContrast(scheme)) {
        for (const double place : {0.0, 0.5, 1.0})
            gradient.setColorAt(place, isDark(scheme) ? Qt::black : Qt::white);
    } else if (scheme == ColorScheme::dark) {
        gradient.setColorAt(0, rgb(0.035, 0.045, 0.07));
        gradient.setColorAt(0.5, rgb(0.055, 0.04, 0.09));
        gradient.setColorAt(1, rgb(0.03, 0.06, 0.075));
    } else {
        gradient.setColorAt(0, rgb(0.9, 0.95, 0.99));
        gradient.setColorAt(0.5, rgb(0.95, 0.92, 0.99));
        gradient.setColorAt(1, rgb(0.91, 0.97, 0.96));
    }
    return gradient;
}

// The opacities keep small secondary text at a contrast of at least 5.5 to 1 on a card; with high
// contrast, of 10 to 1.
QColor primaryLabel(ColorScheme scheme) {
    if (hasHighContrast(scheme)) return isDark(scheme) ? rgb(1, 1, 1) : rgb(0, 0, 0);
    return scheme == ColorScheme::dark ? rgb(1, 1, 1, 0.92) : rgb(0, 0, 0, 0.87);
}

QColor secondaryLabel(ColorScheme scheme) {
    if (hasHighContrast(scheme)) return isDark(scheme) ? rgb(1, 1, 1, 0.8) : rgb(0, 0, 0, 0.75);
    return scheme == ColorScheme::dark ? rgb(1, 1, 1, 0.6) : rgb(0, 0, 0, 0.6);
}

QColor card(ColorScheme scheme) {
    if (hasHighContrast(scheme)) return isDark(scheme) ? rgb(0, 0, 0) : rgb(1, 1, 1);
    return scheme == ColorScheme::dark ? rgb(0.075, 0.085, 0.115, 0.96) : rgb(1, 1, 1, 0.9);
}

QColor line(ColorScheme scheme, double opacity) {
    constexpr double clear = 0.6;  // 7 to 1 on black, 5 to 1 on white
    return faded(primaryLabel(scheme), hasHighContrast(scheme) ? clear : opacity);
}

QColor track(ColorScheme scheme, double opacity) {
    if (!hasHighContrast(scheme)) return faded(primaryLabel(scheme), opacity);
    // A little more than 3 to 1: accents lie beside it.
    return faded(primaryLabel(scheme), isDark(scheme) ? 0.38 : 0.44);
}

QColor over(const QColor& color, const QColor& background) {
    const double a = color.alphaF();
    return rgb(color.redF() * a + background.redF() * (1 - a),
               color.greenF() * a + background.greenF() * (1 - a),
               color.blueF() * a + background.blueF() * (1 - a));
}

QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

QColor labelOn(const QColor& fill, ColorScheme scheme) {
    QColor opaque = card(scheme);
    opaque.setAlpha(255);
    const double background = luminance(over(fill, opaque));
    const double contrastOfWhite = 1.05 / (background + 0.05);
    const double contrastOfBlack = (background + 0.05) / 0.05;
    // Opaque: on a fill of medium brightness there is no contrast to spare.
    return contrastOfWhite >= contrastOfBlack ? rgb(1, 1, 1) : rgb(0, 0, 0);
}

}  // namespace VantorTheme

void vantorBackground(QPainter& painter, const QColor& color, const QPainterPath& shape) {
    painter.fillPath(shape, color);
}

void vantorOutline(QPainter& painter, const QPainterPath& shape, ColorScheme scheme) {
    if (!hasHighContrast(scheme)) return;
    // Inside the shape, half of the stroke lies without.
    painter.save();
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.strokePath(shape, QPen(VantorTheme::line(scheme, 1), 2));
    painter.restore();
}

void vantorForeground(QPainter& painter, const QColor& color) {
    painter.setPen(color);
}

void vantorPrimaryForeground(QPainter& painter, ColorScheme scheme) {
    vantorForeground(painter, VantorTheme::primaryLabel(scheme));
}

void vantorSecondaryForeground(QPainter& painter, ColorScheme scheme) {
    vantorForeground(painter, VantorTheme::secondaryLabel(scheme));
}

void vantorGroupedFormStyle(QFormLayout& form) {
    form.setContentsMargins(20, 20, 20, 20);
    form.setHorizontalSpacing(16);
    form.setVerticalSpacing(12);
    form.setLabelAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    form.setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

}  // namespace vantor
