#include "ui/components/toggle_row.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double switchWidth = 38;
constexpr double switchHeight = 22;
constexpr double knobInset = 2;
constexpr double toggleRowSpacing = 16;
constexpr double narrowestText = 120;
constexpr double offOpacity = 0.18;
constexpr double toggleRowHoverOpacity = 0.26;
constexpr double toggleRowDisabledOpacity = 0.38;
constexpr int textFlags = Qt::TextWordWrap;

QFont textFont() {
    return Typography::font(Typography::body);
}

QSizeF switchSize() {
    return {static_cast<double>(Typography::scaled(switchWidth)),
            static_cast<double>(Typography::scaled(switchHeight))};
}

/// The part of the row's width that is not for the text.
double beside() {
    return switchSize().width() + toggleRowSpacing + 2 * ToggleRowView::outset;
}

}  // namespace

ToggleRowView::ToggleRowView(const QString& title, Switch place, std::function<void(bool)> onChange,
                             QWidget* parent)
    : QAbstractButton(parent), place_(place) {
    setText(title);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAttribute(Qt::WA_Hover);
    // Not clicked(): a screen reader toggles it without a click.
    connect(this, &QAbstractButton::toggled, this, [onChange = std::move(onChange)](bool isOn) {
        if (onChange) onChange(isOn);
    });
}

void ToggleRowView::show(bool isOn) {
    const QSignalBlocker blocker(this);
    setChecked(isOn);
}

double ToggleRowView::textHeight(double width) const {
    const QFontMetricsF metrics(textFont(), this);
    return metrics.boundingRect(QRectF(0, 0, std::max(1.0, width), 1e6), textFlags, text())
        .height();
}

int ToggleRowView::heightForWidth(int width) const {
    return static_cast<int>(
        std::ceil(std::max(switchSize().height() + 2 * outset, textHeight(width - beside()))));
}

QSize ToggleRowView::sizeHint() const {
    const QFontMetricsF metrics(textFont(), this);
    const int width = static_cast<int>(std::ceil(beside() + metrics.horizontalAdvance(text()) + 1));
    return {width, heightForWidth(width)};
}

QSize ToggleRowView::minimumSizeHint() const {
    const int width = static_cast<int>(std::ceil(beside())) + Typography::scaled(narrowestText);
    return {width, static_cast<int>(std::ceil(switchSize().height() + 2 * outset))};
}

QRectF ToggleRowView::switchArea() const {
    const QSizeF size = switchSize();
    const bool isAtRight = (place_ == Switch::trailing) != isRightToLeft();
    const double left = isAtRight ? width() - outset - size.width() : outset;
    return {QPointF(left, (height() - size.height()) / 2), size};
}

QRectF ToggleRowView::textArea() const {
    const bool isSwitchAtRight = (place_ == Switch::trailing) != isRightToLeft();
    const double left = isSwitchAtRight ? outset : beside() - outset;
    return {left, 0, width() - beside(), static_cast<double>(height())};
}

void ToggleRowView::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void ToggleRowView::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void ToggleRowView::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    QAbstractButton::focusInEvent(event);
}

void ToggleRowView::keyPressEvent(QKeyEvent* event) {
    ring_.keyPressed();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void ToggleRowView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(toggleRowDisabledOpacity);
    paintSwitch(painter);
    painter.setFont(textFont());
    vantorPrimaryForeground(painter, colorScheme(*this));
    const auto leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(textArea(), static_cast<int>(leading | Qt::AlignVCenter) | textFlags, text());
}

void ToggleRowView::paintSwitch(QPainter& painter) const {
    const QRectF area = Pixels::snapped(painter, switchArea());
    const double radius = area.height() / 2;
    const ColorScheme scheme = colorScheme(*this);
    QPainterPath track;
    track.addRoundedRect(area, radius, radius);
    const QColor off =
        VantorTheme::track(scheme, underMouse() ? toggleRowHoverOpacity : offOpacity);
    vantorBackground(painter, isChecked() ? VantorTheme::blue() : off, track);
    vantorOutline(painter, track, scheme);
    const double side = area.height() - 2 * knobInset;
    const bool isKnobAtRight = isChecked() != isRightToLeft();
    QPainterPath knob;
    knob.addEllipse(
        QRectF(isKnobAtRight ? area.right() - knobInset - side : area.left() + knobInset,
               area.top() + knobInset, side, side));
    vantorBackground(painter, Qt::white, knob);
    if (hasFocus() && ring_.isShown()) {
        FocusRing::paint(painter, area.adjusted(-outset, -outset, outset, outset), radius + outset,
                         palette());
    }
}

}  // namespace vantor
