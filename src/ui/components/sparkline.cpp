#include "ui/components/sparkline.h"

#include <algorithm>

#include "ui/drawing/device_pixels.h"
#include "ui/formatters.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double lineWidth = 2;
constexpr double sparklineFillOpacity = 0.12;

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
    geometry.points.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double held = std::clamp(values[i], lower, upper);
        geometry.points.emplace_back(step * static_cast<double>(i),
                                     height - height * (held - lower) / span);
    }
    return geometry;
}

void paintSparkline(ViewPainter& painter, const QRectF& area, std::span<const double> values,
                    const QColor& accent, std::optional<std::pair<double, double>> fixedRange) {
    const DevicePixels pixels(painter);
    const QRect place = pixels.at(area);
    const double width = lineWidth * pixels.scale();
    // Half the stroke's width above and below, or a line along an edge would be cut in half.
    auto geometry =
        SparklineGeometry::make(values, place.width(), place.height() - width, fixedRange);
    for (QPointF& point : geometry.points)
        point.ry() += width / 2;
    painter.lines().draw(painter, place, geometry.points, {accent, width, sparklineFillOpacity});
}

SparklineView::SparklineView(QString label, Sparkline sparkline, int height, QWidget* parent)
    : ChartView([](double share) { return Formatters::percent(share, 1); }, parent),
      label_(std::move(label)),
      sparkline_(std::move(sparkline)),
      height_(height) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SparklineView::show(std::span<const double> values, const QString& value,
                         std::span<const double> times) {
    adoptTimes(times);
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
    ViewPainter painter(*this);
    paintSparkline(painter, rect(), sparkline_.values, sparkline_.accent, sparkline_.fixedRange);
    paintReading(painter);
}

}  // namespace vantor
