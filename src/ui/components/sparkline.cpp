#include "ui/components/sparkline.h"

#include <QPainter>

#include <algorithm>

#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double lineWidth = 2;
constexpr double fillOpacity = 0.12;

}  // namespace

SparklineGeometry SparklineGeometry::make(std::span<const double> values, double width,
                                          double height,
                                          std::optional<std::pair<double, double>> fixedRange) {
    SparklineGeometry geometry;
    if (values.empty() || !(width > 0) || !(height > 0)) return geometry;
    auto [lower, upper] = fixedRange.value_or(
        std::pair{*std::ranges::min_element(values), *std::ranges::max_element(values)});
    if (!(upper > lower)) upper = lower + 1;
    const double span = upper - lower;
    const double step = values.size() >= 2 ? width / static_cast<double>(values.size() - 1) : 0;
    geometry.height = height;
    geometry.points.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double held = std::clamp(values[i], lower, upper);
        geometry.points.emplace_back(step * static_cast<double>(i),
                                     height - height * (held - lower) / span);
    }
    return geometry;
}

QPainterPath SparklineGeometry::line() const {
    QPainterPath path;
    if (points.empty()) return path;
    path.reserve(static_cast<int>(points.size()));
    path.moveTo(points.front());
    for (std::size_t i = 1; i < points.size(); ++i)
        path.lineTo(points[i]);
    return path;
}

QPainterPath SparklineGeometry::fill() const {
    QPainterPath path;
    if (points.empty()) return path;
    path.reserve(static_cast<int>(points.size()) + 3);
    path.moveTo(points.front().x(), height);
    for (const QPointF& point : points)
        path.lineTo(point);
    path.lineTo(points.back().x(), height);
    path.closeSubpath();
    return path;
}

void paintSparkline(QPainter& painter, const QRectF& area, std::span<const double> values,
                    const QColor& accent, std::optional<std::pair<double, double>> fixedRange) {
    // Half the stroke's width above and below, or a line along an edge would be cut in half.
    const auto geometry =
        SparklineGeometry::make(values, area.width(), area.height() - lineWidth, fixedRange);
    painter.save();
    painter.translate(area.left(), area.top() + lineWidth / 2);
    vantorBackground(painter, VantorTheme::faded(accent, fillOpacity), geometry.fill());
    painter.strokePath(geometry.line(),
                       QPen(accent, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.restore();
}

SparklineView::SparklineView(QString label, Sparkline sparkline, int height, QWidget* parent)
    : PaintedView(parent),
      label_(std::move(label)),
      sparkline_(std::move(sparkline)),
      height_(height) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SparklineView::show(std::span<const double> values, const QString& value) {
    sparkline_.values.assign(values.begin(), values.end());
    value_ = value;
    update();
    announceValue();
}

QSize SparklineView::sizeHint() const {
    const int height = Typography::scaled(height_);
    return {height, height};
}

void SparklineView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSparkline(painter, rect(), sparkline_.values, sparkline_.accent, sparkline_.fixedRange);
}

}  // namespace vantor
