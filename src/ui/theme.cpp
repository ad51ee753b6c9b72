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

ColorScheme colorScheme(const QWidget& widget) {
    const QColor window = widget.palette().color(QPalette::Window);
    return window.lightnessF() < 0.5f ? ColorScheme::dark : ColorScheme::light;
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
    if (scheme == ColorScheme::dark) {
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

// The opacities keep small secondary text at a contrast of at least 5.5 to 1 on a card.
QColor primaryLabel(ColorScheme scheme) {
    return scheme == ColorScheme::dark ? rgb(1, 1, 1, 0.92) : rgb(0, 0, 0, 0.87);
}

QColor secondaryLabel(ColorScheme scheme) {
    return scheme == ColorScheme::dark ? rgb(1, 1, 1, 0.6) : rgb(0, 0, 0, 0.6);
}

QColor card(ColorScheme scheme) {
    return scheme == ColorScheme::dark ? rgb(0.075, 0.085, 0.115, 0.96) : rgb(1, 1, 1, 0.9);
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
