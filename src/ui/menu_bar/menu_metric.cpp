#include "ui/menu_bar/menu_metric.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/components/card_chrome.h"
#include "ui/components/usage_bar.h"
#include "ui/drawing/view_painter.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double menuMetricGroundOpacity = 0.06;
constexpr double menuMetricHorizontalPadding = 12;
constexpr double menuMetricVerticalPadding = 9;
constexpr double valueSize = 20;
constexpr double menuMetricBarHeight = 4;
constexpr double menuMetricBarGap = 5;

constexpr TextStyle menuMetricTitleStyle{Typography::caption};
constexpr TextStyle menuMetricValueStyle{valueSize, QFont::Bold};

}  // namespace

bool MenuMetric::operator==(const MenuMetric& other) const {
    const bool isSameFraction =
        fraction == other.fraction || (std::isnan(fraction) && std::isnan(other.fraction));
    return isSameFraction && title == other.title && value == other.value && color == other.color;
}

MenuMetricView::MenuMetricView(MenuMetric metric, QWidget* parent)
    : PaintedView(parent), metric_(std::move(metric)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MenuMetricView::show(const MenuMetric& metric) {
    if (metric == metric_) return;
    metric_ = metric;
    update();
    announceValue();
}

std::optional<double> MenuMetricView::accessibleFraction() const {
    if (std::isnan(metric_.fraction)) return std::nullopt;
    return std::clamp(metric_.fraction, 0.0, 1.0);
}

QSize MenuMetricView::sizeHint() const {
    const QFontMetricsF title(Typography::font(menuMetricTitleStyle), this);
    const QFontMetricsF value(Typography::font(menuMetricValueStyle), this);
    // Wide enough for the widest value, so that a tile does not grow with its load.
    const double text = std::max({wholeLineWidth(*this, menuMetricTitleStyle, metric_.title),
                                  Typography::digitTextWidth(QStringLiteral("100%"), value),
                                  Typography::digitTextWidth(metric_.value, value)});
    return {static_cast<int>(std::ceil(2 * menuMetricHorizontalPadding + text)),
            static_cast<int>(std::ceil(2 * menuMetricVerticalPadding + title.height() +
                                       value.height() + menuMetricBarGap + menuMetricBarHeight))};
}

void MenuMetricView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    CardChrome::paintTile(painter, rect(), painter.scheme(), menuMetricGroundOpacity);
    const double across = width() - 2 * menuMetricHorizontalPadding;
    const double titleHeight = painter.lineHeight(menuMetricTitleStyle);
    const double valueHeight = painter.lineHeight(menuMetricValueStyle);
    painter.secondary();
    painter.line(menuMetricTitleStyle,
                 {menuMetricHorizontalPadding, menuMetricVerticalPadding, across, titleHeight},
                 Qt::AlignLeft, metric_.title);
    if (!std::isnan(metric_.fraction)) painter.primary();
    const double valueTop = menuMetricVerticalPadding + titleHeight;
    painter.figures(menuMetricValueStyle,
                    {menuMetricHorizontalPadding, valueTop, across, valueHeight}, Qt::AlignLeft,
                    metric_.value);
    paintUsageBar(painter,
                  {menuMetricHorizontalPadding, valueTop + valueHeight + menuMetricBarGap, across,
                   menuMetricBarHeight},
                  UsageBar{metric_.fraction, metric_.color, menuMetricBarHeight});
}

}  // namespace vantor
