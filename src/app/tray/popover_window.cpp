#include "app/tray/popover_window.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

#include "app/window/window_system.h"
#include "ui/components/make_child.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int gap = 6;
constexpr int border = 1;
// A press on the item first closes the popover; the item's own answer follows at once.
constexpr qint64 justNow = 250;

/// Popups grab the pointer and so close by themselves; only some window systems can place one
/// without a parent window.
Qt::WindowFlags kind() {
    const Qt::WindowFlags flags = isWayland() ? Qt::Tool : Qt::Popup;
    return flags | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
}

int held(int value, int low, int high) {
    return std::max(low, std::min(value, high));
}

}  // namespace

QPoint popoverPlace(QSize size, const QRect& anchor, const QRect& screen, Qt::LayoutDirection way) {
    const int lowest = screen.bottom() + 1 - size.height() - gap;
    const int rightmost = screen.right() + 1 - size.width() - gap;
    if (!anchor.isValid()) {
        const bool isAtLeft = way == Qt::RightToLeft;
        return {isAtLeft ? screen.left() + gap : rightmost, screen.top() + gap};
    }
    const int below = anchor.bottom() + 1 + gap;
    const int above = anchor.top() - gap - size.height();
    const int y = below <= lowest ? below : above;
    return {held(anchor.center().x() - size.width() / 2, screen.left() + gap, rightmost),
            held(y, screen.top() + gap, lowest)};
}

PopoverWindow::PopoverWindow(std::unique_ptr<QWidget> content)
    : QWidget(nullptr, kind()), content_(content.get()) {
    setWindowTitle(QStringLiteral("Vantor"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(border, border, border, border);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content.release());
}

void PopoverWindow::open(const QRect& anchor) {
    const QPoint around = anchor.isValid() ? anchor.center() : QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(around);
    if (!screen) screen = QGuiApplication::primaryScreen();
    adjustSize();
    if (screen) move(popoverPlace(size(), anchor, screen->availableGeometry(), layoutDirection()));
    show();
    raise();
    activateWindow();
    focusFirst();
}

/// A line around the content, which paints the rest: the popover may lie on its own colour.
void PopoverWindow::paintEvent(QPaintEvent* event) {
    const ColorScheme scheme = colorScheme(*this);
    const QColor background = palette().color(QPalette::Window);
    const QColor line = VantorTheme::line(scheme, 0.2);
    QPainter(this).fillRect(event->rect(), VantorTheme::over(line, background));
}

/// The Return key runs the first action.
void PopoverWindow::focusFirst() {
    QWidget* widget = content_->nextInFocusChain();
    while (widget != content_ && !(widget->focusPolicy() & Qt::TabFocus))
        widget = widget->nextInFocusChain();
    widget->setFocus(Qt::PopupFocusReason);
}

bool PopoverWindow::hasJustClosed() const {
    return sinceClosed_.isValid() && !sinceClosed_.hasExpired(justNow);
}

void PopoverWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        sinceClosed_.invalidate();  // not closed by a press on the item
        return;
    }
    QWidget::keyPressEvent(event);
}

void PopoverWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) close();
}

void PopoverWindow::hideEvent(QHideEvent* event) {
    sinceClosed_.start();
    QWidget::hideEvent(event);
}

}  // namespace vantor
