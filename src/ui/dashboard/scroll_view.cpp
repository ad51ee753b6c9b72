#include "ui/dashboard/scroll_view.h"

#include <QPainter>
#include <QStyleOptionSlider>

#include "ui/components/make_child.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int barWidth = 10;
constexpr int handleInset = 2;
constexpr double restingOpacity = 0.22;
constexpr double activeOpacity = 0.4;

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
    vantorBackground(painter,
                     VantorTheme::faded(VantorTheme::primaryLabel(colorScheme(*this)),
                                        active ? activeOpacity : restingOpacity),
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
    // Not a stop of the Tab key, but where the arrow and page keys arrive when nothing else has the
    // focus.
    setFocusPolicy(Qt::ClickFocus);
}

VantorScrollView::VantorScrollView(Qt::Orientations axes, QWidget* parent)
    : LegacyVantorScrollView(axes, parent) {
    setVerticalScrollBar(makeChild<SlimScrollBar>(this, Qt::Vertical));
    setHorizontalScrollBar(makeChild<SlimScrollBar>(this, Qt::Horizontal));
    verticalScrollBar()->setSingleStep(24);
}

}  // namespace vantor
