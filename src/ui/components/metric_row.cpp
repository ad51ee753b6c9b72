#include "ui/components/metric_row.h"

#include <QPainter>

#include <cmath>

#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double spacing = 8;
constexpr double dotSize = 7;

QFont labelFont() {
    return Typography::font(Typography::caption);
}
QFont valueFont() {
    return Typography::font(Typography::caption, QFont::Medium);
}

}  // namespace

MetricRowGeometry MetricRowGeometry::make(double height, bool hasDot) {
    if (!hasDot) return {};
    return {QRectF(0, (height - dotSize) / 2, dotSize, dotSize), dotSize + spacing};
}

MetricRowView::MetricRowView(MetricRow row, QWidget* parent)
    : PaintedView(parent), row_(std::move(row)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MetricRowView::show(const MetricRow& row) {
    if (row == row_) return;
    row_ = row;
    update();
    announceValue();
}

QSize MetricRowView::sizeHint() const {
    const QFontMetricsF label(labelFont(), this);
    const QFontMetricsF value(valueFont(), this);
    const double width = MetricRowGeometry::make(0, row_.color.has_value()).labelLeft +
                         label.horizontalAdvance(row_.label) + spacing +
                         Typography::digitTextWidth(row_.value, value);
    return {static_cast<int>(std::ceil(width)),
            static_cast<int>(std::ceil(std::max(label.height(), value.height())))};
}

QSize MetricRowView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void MetricRowView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    const auto geometry = MetricRowGeometry::make(height(), row_.color.has_value());
    if (geometry.dot) {
        QPainterPath dot;
        dot.addEllipse(*geometry.dot);
        vantorBackground(painter, *row_.color, dot);
    }
    painter.setFont(valueFont());
    const double valueWidth =
        Typography::digitTextWidth(row_.value, QFontMetricsF(painter.font(), this));
    vantorPrimaryForeground(painter, scheme);
    Typography::drawDigitText(painter, rect(), Qt::AlignRight | Qt::AlignVCenter, row_.value);
    painter.setFont(labelFont());
    vantorSecondaryForeground(painter, scheme);
    const QRectF label(geometry.labelLeft, 0, width() - geometry.labelLeft - spacing - valueWidth,
                       height());
    Typography::drawLine(painter, label, Qt::AlignLeft | Qt::AlignVCenter, row_.label);
}

}  // namespace vantor
