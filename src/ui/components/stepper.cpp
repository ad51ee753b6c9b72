#include "ui/components/stepper.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/pixels.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double halfWidth = 34;
constexpr double stepperVerticalPadding = 6;
constexpr double stepperSymbolSide = 14;
constexpr double stepperGroundOpacity = 0.07;
constexpr double stepperHoverOpacity = 0.06;
constexpr double stepperPressedOpacity = 0.14;
constexpr double dividerOpacity = 0.14;
constexpr double dividerInset = 7;
constexpr double stepperDisabledOpacity = 0.38;
constexpr int firstRepeat = 400;  // milliseconds that the button is held down
constexpr int nextRepeat = 40;
constexpr std::int64_t page = 10;

QFont symbolFont() {
    return Typography::font(Typography::body);
}

}  // namespace

std::int64_t Stepper::stepped(std::int64_t value, std::int64_t steps) const {
    // Clamped first: a value far outside must not wrap around.
    const std::int64_t held = std::clamp(value, lowest - 1, highest + 1);
    return std::clamp(held + steps, lowest, highest);
}

StepperView::StepperView(Stepper stepper, std::int64_t value,
                         std::function<void(std::int64_t)> onChange, QWidget* parent)
    : PaintedView(parent),
      stepper_(std::move(stepper)),
      value_(value),
      onChange_(std::move(onChange)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
}

void StepperView::show(std::int64_t value) {
    if (value == value_) return;
    value_ = value;
    update();
    announceValue();
}

QString StepperView::accessibleValueText() const {
    return stepper_.valueText(value_);
}

std::optional<AccessibleRange> StepperView::accessibleRange() const {
    return AccessibleRange{static_cast<double>(value_), static_cast<double>(stepper_.lowest),
                           static_cast<double>(stepper_.highest), 1};
}

void StepperView::setAccessibleNumber(double number) {
    if (!std::isfinite(number)) return;
    const double held = std::clamp(number, static_cast<double>(stepper_.lowest),
                                   static_cast<double>(stepper_.highest));
    ask(std::llround(held));
}

QSize StepperView::sizeHint() const {
    const double height = QFontMetricsF(symbolFont(), this).height() + 2 * stepperVerticalPadding;
    return {2 * Typography::scaled(halfWidth), static_cast<int>(std::ceil(height))};
}

QRectF StepperView::areaOf(Half half) const {
    const double across = width() / 2.0;
    const bool isAtRight = (half == Half::more) != isRightToLeft();
    return {isAtRight ? across : 0, 0, across, static_cast<double>(height())};
}

bool StepperView::canStep(Half half) const {
    if (!isEnabled()) return false;
    return half == Half::less ? value_ > stepper_.lowest : value_ < stepper_.highest;
}

std::optional<StepperView::Half> StepperView::halfAt(QPointF place) const {
    for (const Half half : {Half::less, Half::more}) {
        if (areaOf(half).contains(place)) return half;
    }
    return std::nullopt;
}

void StepperView::ask(std::int64_t value) {
    if (value != value_ && onChange_) onChange_(value);
}

void StepperView::mousePressEvent(QMouseEvent* event) {
    ring_.mousePressed();
    const auto half = halfAt(event->position());
    if (event->button() != Qt::LeftButton || !half) return;
    pressed_ = half;
    repeat_.start(firstRepeat, this);
    step(*half == Half::more ? 1 : -1);
    update();
}

void StepperView::mouseReleaseEvent(QMouseEvent*) {
    release();
}

void StepperView::mouseMoveEvent(QMouseEvent* event) {
    const auto half = halfAt(event->position());
    if (half == hovered_) return;
    hovered_ = half;
    update();
}

void StepperView::leaveEvent(QEvent*) {
    hovered_.reset();
    update();
}

void StepperView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != repeat_.timerId()) return;
    repeat_.start(nextRepeat, this);
    // A finger that slid off the half pauses what it repeats.
    if (pressed_ && pressed_ == hovered_.value_or(*pressed_)) {
        step(*pressed_ == Half::more ? 1 : -1);
    }
}

void StepperView::release() {
    repeat_.stop();
    pressed_.reset();
    update();
}

void StepperView::hideEvent(QHideEvent* event) {
    release();
    PaintedView::hideEvent(event);
}

void StepperView::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    PaintedView::focusInEvent(event);
}

void StepperView::focusOutEvent(QFocusEvent* event) {
    release();
    PaintedView::focusOutEvent(event);
}

bool StepperView::stepByKey(int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Plus:
            step(1);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Minus:
            step(-1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Left:
            step((key == Qt::Key_Right) != isRightToLeft() ? 1 : -1);
            return true;
        case Qt::Key_PageUp:
            step(page);
            return true;
        case Qt::Key_PageDown:
            step(-page);
            return true;
        case Qt::Key_Home:
            ask(stepper_.lowest);
            return true;
        case Qt::Key_End:
            ask(stepper_.highest);
            return true;
        default:
            return false;
    }
}

void StepperView::keyPressEvent(QKeyEvent* event) {
    ring_.keyPressed();
    update();
    if (!stepByKey(event->key())) PaintedView::keyPressEvent(event);
}

void StepperView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor label = VantorTheme::primaryLabel(colorScheme(*this));
    const QRectF area = Pixels::snapped(painter, rect());
    const double radius = area.height() / 2;
    QPainterPath capsule;
    capsule.addRoundedRect(area, radius, radius);
    vantorBackground(painter, VantorTheme::faded(label, stepperGroundOpacity), capsule);
    vantorOutline(painter, capsule, colorScheme(*this));
    painter.save();
    painter.setClipPath(capsule);
    for (const Half half : {Half::less, Half::more})
        paintHalf(painter, half);
    painter.restore();
    const double middle = area.center().x();
    const double line = Pixels::snappedLineWidth(painter, 1);
    painter.fillRect(Pixels::snapped(painter, {middle - line / 2, area.top() + dividerInset, line,
                                               area.height() - 2 * dividerInset}),
                     VantorTheme::line(colorScheme(*this), dividerOpacity));
    if (hasFocus() && ring_.isShown()) FocusRing::paint(painter, area, radius, palette());
}

void StepperView::paintHalf(QPainter& painter, Half half) const {
    const QColor label = VantorTheme::primaryLabel(colorScheme(*this));
    const QRectF area = areaOf(half);
    const bool isPressed = pressed_ == half;
    if (canStep(half) && (isPressed || hovered_ == half)) {
        painter.fillRect(area, VantorTheme::faded(
                                   label, isPressed ? stepperPressedOpacity : stepperHoverOpacity));
    }
    // Odd, so that a stroke through the middle fills whole pixels.
    const double side = Typography::scaled(stepperSymbolSide) | 1;
    const QRectF symbol(std::round(area.center().x() - side / 2),
                        std::round(area.center().y() - side / 2), side, side);
    Symbols::draw(painter, symbol,
                  half == Half::more ? QStringLiteral("plus") : QStringLiteral("minus"),
                  canStep(half) ? label : VantorTheme::faded(label, stepperDisabledOpacity));
}

}  // namespace vantor
