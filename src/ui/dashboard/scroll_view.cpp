#include "ui/dashboard/scroll_view.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "ui/components/make_child.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int barWidth = 10;
constexpr int handleInset = 2;
constexpr double restingOpacity = 0.22;
constexpr double activeOpacity = 0.4;

constexpr int singleStep = 24;
// Long enough for the eye to follow, short enough not to wait for.
constexpr int glideMilliseconds = 140;

}  // namespace

QSize SlimScrollBar::sizeHint() const {
    const QSize size = QScrollBar::sizeHint();
    return orientation() == Qt::Vertical ? QSize(barWidth, size.height())
                                         : QSize(size.width(), barWidth);
}

void SlimScrollBar::enterEvent(QEnterEvent* event) {
    QScrollBar::enterEvent(event);
    update();
}

void SlimScrollBar::leaveEvent(QEvent* event) {
    QScrollBar::leaveEvent(event);
    update();
}

void SlimScrollBar::paintEvent(QPaintEvent*) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle = QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                         QStyle::SC_ScrollBarSlider, this))
                              .adjusted(handleInset, handleInset, -handleInset, -handleInset);
    const double radius = std::min(handle.width(), handle.height()) / 2;
    const bool active = underMouse() || isSliderDown();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(handle, radius, radius);
    vantorBackground(
        painter, VantorTheme::track(colorScheme(*this), active ? activeOpacity : restingOpacity),
        shape);
}

LegacyVantorScrollView::LegacyVantorScrollView(Qt::Orientations axes, QWidget* parent)
    : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(axes & Qt::Horizontal ? Qt::ScrollBarAsNeeded
                                                       : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(axes & Qt::Vertical ? Qt::ScrollBarAsNeeded
                                                   : Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setAutoFillBackground(false);
    // Not a Tab stop, but gets the arrow and page keys when nothing else has the focus.
    setFocusPolicy(Qt::ClickFocus);
}

VantorScrollView::VantorScrollView(Qt::Orientations axes, QWidget* parent)
    : LegacyVantorScrollView(axes, parent) {
    setVerticalScrollBar(makeChild<SlimScrollBar>(this, Qt::Vertical));
    setHorizontalScrollBar(makeChild<SlimScrollBar>(this, Qt::Horizontal));
    QScrollBar* const bar = verticalScrollBar();
    bar->setSingleStep(singleStep);
    glide_.setDuration(glideMilliseconds);
    glide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&glide_, &QVariantAnimation::valueChanged, this, [this, bar](const QVariant& value) {
        if (glide_.state() != QAbstractAnimation::Running) return;
        lastStep_ = value.toInt();
        bar->setValue(lastStep_);
    });
    connect(bar, &QScrollBar::valueChanged, this, [this](int value) {
        if (value != lastStep_) glide_.stop();  // something else moves the page now
    });
}

int VantorScrollView::destination() const {
    return glide_.state() == QAbstractAnimation::Running ? glide_.endValue().toInt()
                                                         : verticalScrollBar()->value();
}

void VantorScrollView::wheelEvent(QWheelEvent* event) {
    QScrollBar* const bar = verticalScrollBar();
    const bool isPlainWheel = event->pixelDelta().isNull() && event->angleDelta().x() == 0 &&
                              event->modifiers() == Qt::NoModifier;
    const bool mayGlide = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this);
    if (!isPlainWheel || !mayGlide) {
        LegacyVantorScrollView::wheelEvent(event);
        return;
    }
    const double notches = event->angleDelta().y() / 120.0;
    const int distance =
        static_cast<int>(std::lround(notches * QApplication::wheelScrollLines() * singleStep));
    const int end = std::clamp(destination() - distance, bar->minimum(), bar->maximum());
    event->accept();
    if (end == bar->value() && glide_.state() != QAbstractAnimation::Running) return;
    glide_.stop();
    lastStep_ = bar->value();
    glide_.setStartValue(lastStep_);
    glide_.setEndValue(end);
    glide_.start();
}

}  // namespace vantor
