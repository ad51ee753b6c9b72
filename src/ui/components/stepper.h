#pragma once

#include <QBasicTimer>
#include <QString>

#include <cstdint>
#include <functional>

#include "ui/components/focus_ring.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// A whole number within bounds that is changed one by one.
struct Stepper {
    QString label;                                   ///< for assistive technology
    std::function<QString(std::int64_t)> valueText;  ///< "60 samples"
    std::int64_t lowest = 0;
    std::int64_t highest = 0;

    /// `value` and `steps`, clamped to the bounds.
    std::int64_t stepped(std::int64_t value, std::int64_t steps) const;
};

/// Two halves of a capsule, less and more. Held down they repeat. Arrow keys step by one, page keys
/// by ten, Home and End go to the bounds. It shows the value that it is given: one outside
/// the bounds stays as it is until the user steps.
class StepperView : public PaintedView {
  public:
    enum class Half { less, more };

    /// `onChange` is called with the value that the user asks for.
    StepperView(Stepper stepper, std::int64_t value, std::function<void(std::int64_t)> onChange,
                QWidget* parent = nullptr);

    void show(std::int64_t value);
    std::int64_t value() const { return value_; }

    QRectF areaOf(Half half) const;  ///< in this widget
    bool canStep(Half half) const;
    int repeatTimer() const { return repeat_.timerId(); }  ///< 0 or less while nothing is held down

    QAccessible::Role accessibleRole() const override { return QAccessible::SpinBox; }
    QString accessibleLabel() const override { return stepper_.label; }
    QString accessibleValueText() const override;
    std::optional<AccessibleRange> accessibleRange() const override;
    void setAccessibleNumber(double number) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    std::optional<Half> halfAt(QPointF place) const;
    void ask(std::int64_t value);
    void step(std::int64_t steps) { ask(stepper_.stepped(value_, steps)); }
    bool stepByKey(int key);
    void release();
    void paintHalf(QPainter& painter, Half half) const;

    Stepper stepper_;
    std::int64_t value_;
    std::function<void(std::int64_t)> onChange_;
    std::optional<Half> hovered_;
    std::optional<Half> pressed_;
    QBasicTimer repeat_;
    FocusRing ring_;
};

}  // namespace vantor
