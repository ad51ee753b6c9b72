#include "ui/components/labeled_sparkline.h"

#include <cmath>

#include "ui/components/sparkline.h"
#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double labeledSparklineSpacing = 6;
constexpr double labeledSparklineChartHeight = 54;

constexpr TextStyle labeledSparklineTextStyle{Typography::caption2};

}  // namespace

LabeledSparklineView::LabeledSparklineView(LabeledSparkline sparkline, QWidget* parent)
    : ChartView([](double bytesPerSecond) { return Formatters::rate(bytesPerSecond); }, parent),
      sparkline_(std::move(sparkline)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LabeledSparklineView::show(const QString& value, std::span<const double> values,
                                std::span<const double> times) {
    adoptTimes(times);
    sparkline_.value = value;
    sparkline_.values.assign(values.begin(), values.end());
    update();
    announceValue();
}

double LabeledSparklineView::textHeight() const {
    return std::ceil(QFontMetricsF(Typography::font(labeledSparklineTextStyle), this).height());
}

QSize LabeledSparklineView::sizeHint() const {
    return {Typography::scaled(160), static_cast<int>(textHeight() + labeledSparklineSpacing) +
                                         Typography::scaled(labeledSparklineChartHeight)};
}

QSize LabeledSparklineView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void LabeledSparklineView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double textHeight = std::ceil(painter.lineHeight(labeledSparklineTextStyle));
    const QRectF text(0, 0, width(), textHeight);
    if (sparkline_.values.empty()) {
        painter.secondary();
    } else {
        painter.primary();
    }
    painter.figures(labeledSparklineTextStyle, text, Qt::AlignRight | Qt::AlignTop,
                    sparkline_.value);
    const double valueWidth = painter.figuresWidth(labeledSparklineTextStyle, sparkline_.value);
    painter.secondary();
    painter.line(labeledSparklineTextStyle,
                 text.adjusted(0, 0, -valueWidth - labeledSparklineSpacing, 0),
                 Qt::AlignLeft | Qt::AlignTop, sparkline_.label);
    paintSparkline(painter, chartArea(), sparkline_.values, sparkline_.color, std::nullopt);
    paintReading(painter);
}

QRectF LabeledSparklineView::chartArea() const {
    const double top = textHeight() + labeledSparklineSpacing;
    return {0, top, static_cast<double>(width()), height() - top};
}

}  // namespace vantor
