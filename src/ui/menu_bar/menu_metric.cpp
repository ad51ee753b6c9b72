#include "ui/menu_bar/menu_metric.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/components/card_chrome.h"
#include "ui/components/usage_bar.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double groundOpacity = 0.06;
constexpr double horizontalPadding = 12;
constexpr double verticalPadding = 9;
constexpr double valueSize = 20;
constexpr double barHeight = 4;
constexpr double barGap = 5;

QFont titleFont() {
    return Typography::font(Typography::caption);
}
QFont valueFont() {
    return Typography::font(valueSize, QFont::Bold);
}

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
    const QFontMetricsF title(titleFont(), this);
    const QFontMetricsF value(valueFont(), this);
    // Room for the widest value, so that a tile does not grow with its load.
    const double text = std::max({title.horizontalAdvance(metric_.title),
                                  Typography::digitTextWidth(QStringLiteral("100%"), value),
                                  Typography::digitTextWidth(metric_.value, value)});
    return {static_cast<int>(std::ceil(2 * horizontalPadding + text)),
            static_cast<int>(std::ceil(2 * verticalPadding + title.height() + value.height() +
                                       barGap + barHeight))};
}

void MenuMetricView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    CardChrome::paintTile(painter, rect(), scheme, groundOpacity);
    const auto leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    const double across = width() - 2 * horizontalPadding;
    const double titleHeight = QFontMetricsF(titleFont(), this).height();
    const double valueHeight = QFontMetricsF(valueFont(), this).height();
    painter.setFont(titleFont());
    vantorSecondaryForeground(painter, scheme);
    Typography::drawLine(painter, {horizontalPadding, verticalPadding, across, titleHeight},
                         leading, metric_.title);
    painter.setFont(valueFont());
    vantorPrimaryForeground(painter, scheme);
    const double valueTop = verticalPadding + titleHeight;
    Typography::drawDigitText(painter, {horizontalPadding, valueTop, across, valueHeight}, leading,
                              metric_.value);
    paintBar(painter, valueTop + valueHeight + barGap);
}

void MenuMetricView::paintBar(QPainter& painter, double top) const {
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    paintUsageBar(painter, {horizontalPadding, top, width() - 2 * horizontalPadding, barHeight},
                  UsageBar{metric_.fraction, metric_.color, barHeight}, colorScheme(*this));
}

}  // namespace vantor
