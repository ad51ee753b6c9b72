#include "ui/components/labeled_sparkline.h"

#include <QPainter>

#include <cmath>

#include "ui/components/sparkline.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double spacing = 6;
constexpr double chartHeight = 54;

QFont textFont() {
    return Typography::font(Typography::caption2);
}

}  // namespace

LabeledSparklineView::LabeledSparklineView(LabeledSparkline sparkline, QWidget* parent)
    : PaintedView(parent), sparkline_(std::move(sparkline)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LabeledSparklineView::show(const QString& value, std::span<const double> values) {
    sparkline_.value = value;
    sparkline_.values.assign(values.begin(), values.end());
    update();
    announceValue();
}

double LabeledSparklineView::textHeight() const {
    return std::ceil(QFontMetricsF(textFont(), this).height());
}

QSize LabeledSparklineView::sizeHint() const {
    return {Typography::scaled(160),
            static_cast<int>(textHeight() + spacing) + Typography::scaled(chartHeight)};
}

QSize LabeledSparklineView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void LabeledSparklineView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    painter.setFont(textFont());
    const QRectF text(0, 0, width(), textHeight());
    vantorPrimaryForeground(painter, scheme);
    Typography::drawDigitText(painter, text, Qt::AlignRight, sparkline_.value);
    const double valueWidth =
        Typography::digitTextWidth(sparkline_.value, QFontMetricsF(painter.font(), this));
    vantorSecondaryForeground(painter, scheme);
    Typography::drawLine(painter, text.adjusted(0, 0, -valueWidth - spacing, 0), Qt::AlignLeft,
                         sparkline_.label);
    paintSparkline(painter,
                   {0, textHeight() + spacing, text.width(), height() - textHeight() - spacing},
                   sparkline_.values, sparkline_.color, std::nullopt);
}

}  // namespace vantor
