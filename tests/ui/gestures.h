#pragma once

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

namespace vantor {

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF place) {
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(
        type, place, widget.mapToGlobal(place), isMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Presses and releases the left button in the middle of `widget`.
inline void click(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    sendMouse(widget, QEvent::MouseButtonPress, middle);
    sendMouse(widget, QEvent::MouseButtonRelease, middle);
}

inline void pressKey(QWidget& widget, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// Lets the pointer rest at a place of `widget`.
inline void hover(QWidget& widget, QPoint place) {
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
}

/// Counts how often widgets are painted.
class PaintCount : public QObject {
  public:
    /// Watches `widget` and everything in it.
    void watch(QWidget& widget) {
        widget.installEventFilter(this);
        for (QWidget* child : widget.findChildren<QWidget*>())
            child->installEventFilter(this);
    }
    int take() { return std::exchange(count_, 0); }
    /// Of the last one: how many rectangles it was.
    int pieces() const { return pieces_; }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        ++count_;
        pieces_ = static_cast<QPaintEvent*>(event)->region().rectCount();
        return false;
    }

  private:
    int count_ = 0;
    int pieces_ = 0;
};

}  // namespace vantor
