#include "ui/components/ring_gauge.h"

#include <algorithm>
#include <cmath>

#include "ui/drawing/device_pixels.h"
#include "ui/drawing/view_painter.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double ringFrame = 126;
constexpr TextStyle ringGaugeTitleStyle{24, QFont::Bold};
constexpr TextStyle ringGaugeDetailStyle{Typography::caption2, QFont::Medium};
constexpr double ringGaugeTextSpacing = 2;

}  // namespace

RingGaugeGeometry RingGaugeGeometry::make(const QRectF& bounds, double value, double lineWidth) {
    const double side = std::max(0.0, std::min(bounds.width(), bounds.height()) - lineWidth);
    QRectF circle(0, 0, side, side);
    circle.moveCenter(bounds.center());
    const double share = value > 0 ? std::min(value, 1.0) : 0;  // not a number draws nothing either
    return {circle, share * 360};
}

RingGaugeView::RingGaugeView(RingGauge gauge, QWidget* parent)
    : PaintedView(parent), gauge_(std::move(gauge)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RingGaugeView::show(const RingGauge& gauge) {
    if (gauge == gauge_) return;
    gauge_ = gauge;
    update();
    announceValue();
}

std::optional<double> RingGaugeView::accessibleFraction() const {
    if (std::isnan(gauge_.value)) return std::nullopt;
    return std::clamp(gauge_.value, 0.0, 1.0);
}

QSize RingGaugeView::sizeHint() const {
    const int side = Typography::scaled(ringFrame);
    return {side, side};
}

void RingGaugeView::paintRing(ViewPainter& painter, const RingGaugeGeometry& geometry,
                              double width) const {
    const QColor track = VantorTheme::track(painter.scheme(), 0.08);
    const DevicePixels pixels(painter);
    const double scale = pixels.scale();
    painter.rings().draw(
        painter, {pixels.exact(geometry.circle.center()), geometry.circle.width() / 2 * scale,
                  width * scale, geometry.sweep, track, gauge_.accent});
}

void RingGaugeView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double width = gauge_.lineWidth * Typography::lengthScale();
    paintRing(painter, RingGaugeGeometry::make(rect(), gauge_.value, width), width);

    const double titleHeight = painter.lineHeight(ringGaugeTitleStyle);
    const double detailHeight = painter.lineHeight(ringGaugeDetailStyle);
    const double top = (height() - titleHeight - ringGaugeTextSpacing - detailHeight) / 2;
    if (std::isnan(gauge_.value)) {
        painter.secondary();
    } else {
        painter.primary();
    }
    painter.figures(ringGaugeTitleStyle, QRectF(0, top, this->width(), titleHeight),
                    Qt::AlignHCenter, gauge_.title);
    painter.secondary();
    const QRectF detail(width, top + titleHeight + ringGaugeTextSpacing, this->width() - 2 * width,
                        detailHeight);
    painter.line(ringGaugeDetailStyle, detail, Qt::AlignHCenter, gauge_.detail);
}

}  // namespace vantor
