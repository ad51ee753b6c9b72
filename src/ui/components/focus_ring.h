#pragma once

#include <QFocusEvent>
#include <QPainter>
#include <QPalette>
#include <QRectF>

namespace vantor {

/// Shows the keyboard focus. The ring appears when the focus arrived by key: a mouse user sees the
/// pointer, and a window that becomes active again shows what it showed before.
class FocusRing {
  public:
    static constexpr double width = 2;

    void focusIn(const QFocusEvent& event) {
        switch (event.reason()) {
            case Qt::MouseFocusReason:
                isShown_ = false;
                break;
            case Qt::TabFocusReason:
            case Qt::BacktabFocusReason:
            case Qt::ShortcutFocusReason:
                isShown_ = true;
                break;
            default:
                break;
        }
    }
    void keyPressed() { isShown_ = true; }
    void mousePressed() { isShown_ = false; }
    bool isShown() const { return isShown_; }

    /// Draws a ring within `area`, whose corners have that radius.
    static void paint(QPainter& painter, const QRectF& area, double radius,
                      const QPalette& palette) {
        constexpr double inset = width / 2;
        painter.setPen(QPen(palette.color(QPalette::Highlight), width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius - inset,
                                radius - inset);
    }

  private:
    bool isShown_ = false;
};

}  // namespace vantor
