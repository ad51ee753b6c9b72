#include "ui/components/usage_bar.h"

#include <algorithm>
#include <cmath>

#include "ui/formatters.h"
#include "ui/pixels.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double usageBarTrackOpacity = 0.08;
constexpr double usageBarFillOpacity = 0.92;

void fillCapsule(QPainter& painter, const QRectF& area, const QColor& color) {
    const double radius = std::min(area.width(), area.height()) / 2;
    QPainterPath capsule;
    capsule.addRoundedRect(area, radius, radius);
    vantorBackground(painter, color, capsule);
}

}  // namespace

UsageBarGeometry UsageBarGeometry::make(const QRectF& bounds, double value) {
    const double share = value > 0 ? std::min(value, 1.0) : 0;  // not a number draws nothing either
    QRectF fill = bounds;
    fill.setWidth(bounds.width() * share);
    return {bounds, fill};
}

void paintUsageBar(ViewPainter& painter, const QRectF& bounds, const UsageBar& bar) {
    const QRectF whole(bounds.left(), bounds.top() + (bounds.height() - bar.height) / 2,
                       bounds.width(), bar.height);
    auto geometry =
        UsageBarGeometry::make(Pixels::snapped(painter, painter.leading(whole)), bar.value);
    if (painter.isMirrored()) geometry.fill.moveRight(geometry.track.right());
    fillCapsule(painter, geometry.track,
                VantorTheme::track(painter.scheme(), usageBarTrackOpacity));
    if (geometry.fill.width() > 0) {
        fillCapsule(painter, geometry.fill, VantorTheme::faded(bar.accent, usageBarFillOpacity));
    }
}

UsageBarView::UsageBarView(QString label, UsageBar bar, QWidget* parent)
    : PaintedView(parent), label_(std::move(label)), bar_(std::move(bar)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void UsageBarView::show(const UsageBar& bar) {
    if (bar == bar_) return;
    bar_ = bar;
    update();
    announceValue();
}

QString UsageBarView::accessibleValueText() const {
    return Formatters::percent(bar_.value, 0);
}

QSize UsageBarView::sizeHint() const {
    return {Typography::scaled(120), static_cast<int>(std::ceil(bar_.height))};
}

QSize UsageBarView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void UsageBarView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    paintUsageBar(painter, rect(), bar_);
}

}  // namespace vantor
