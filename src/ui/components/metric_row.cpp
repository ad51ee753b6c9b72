#include "ui/components/metric_row.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

#include "ui/components/tool_tip_text.h"
#include "ui/drawing/view_painter.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double metricRowSpacing = 8;
constexpr double dotSize = 7;

constexpr TextStyle metricRowLabelStyle{Typography::caption};
constexpr TextStyle metricRowValueStyle{Typography::caption, QFont::Medium};

}  // namespace

MetricRowGeometry MetricRowGeometry::make(double height, bool hasDot) {
    if (!hasDot) return {};
    return {QRectF(0, (height - dotSize) / 2, dotSize, dotSize), dotSize + metricRowSpacing};
}

MetricRowView::MetricRowView(MetricRow row, QWidget* parent)
    : PaintedView(parent), row_(std::move(row)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MetricRowView::show(const MetricRow& row) {
    if (row == row_) return;
    row_ = row;
    adoptHelp();
    update();
    announceValue();
}

void MetricRowView::explain(const QString& help) {
    help_ = help;
    adoptHelp();
}

void MetricRowView::adoptHelp() {
    constexpr qsizetype alwaysFits = 24;
    QStringList parts;
    if (row_.value.size() > alwaysFits) parts << row_.value;
    if (!help_.isEmpty()) parts << help_;
    setToolTip(toolTipText(parts.join(u'\n')));
}

QSize MetricRowView::sizeHint() const {
    const QFontMetricsF label(Typography::font(metricRowLabelStyle), this);
    const QFontMetricsF value(Typography::font(metricRowValueStyle), this);
    const double width = MetricRowGeometry::make(0, row_.color.has_value()).labelLeft +
                         wholeLineWidth(*this, metricRowLabelStyle, row_.label) + metricRowSpacing +
                         Typography::digitTextWidth(row_.value, value);
    return {static_cast<int>(std::ceil(width)),
            static_cast<int>(std::ceil(std::max(label.height(), value.height())))};
}

QSize MetricRowView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void MetricRowView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const auto geometry = MetricRowGeometry::make(height(), row_.color.has_value());
    if (geometry.dot) {
        QPainterPath dot;
        dot.addEllipse(painter.leading(*geometry.dot));
        vantorBackground(painter, *row_.color, dot);
    }
    const double valueWidth = painter.figuresWidth(metricRowValueStyle, row_.value);
    if (row_.isAbsent) {
        painter.secondary();
    } else {
        painter.primary();
    }
    // Neither a long label nor a long value may take the whole row.
    const double beside = width() - geometry.labelLeft - metricRowSpacing -
                          painter.lineWidth(metricRowLabelStyle, row_.label);
    const double room = std::max(beside, width() / 2.0);
    if (valueWidth > room) {
        const QRectF area(width() - room, 0, room, height());
        painter.line(metricRowValueStyle, area, Qt::AlignRight | Qt::AlignVCenter, row_.value);
    } else {
        painter.figures(metricRowValueStyle, rect(), Qt::AlignRight | Qt::AlignVCenter, row_.value);
    }
    painter.secondary();
    const double taken = std::min(valueWidth, room);
    const QRectF label(geometry.labelLeft, 0,
                       width() - geometry.labelLeft - metricRowSpacing - taken, height());
    painter.line(metricRowLabelStyle, label, Qt::AlignLeft | Qt::AlignVCenter, row_.label);
}

}  // namespace vantor
