#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace vantor {

/// A widget that paints itself and tells assistive technology what it shows: a role, a label and a
/// value. A view repaints only when it is shown something new.
class PaintedView : public QWidget {
  public:
    explicit PaintedView(QWidget* parent = nullptr) : QWidget(parent) {}

    virtual QAccessible::Role accessibleRole() const { return QAccessible::StaticText; }
    virtual QString accessibleLabel() const = 0;
    virtual QString accessibleValueText() const { return {}; }

  protected:
    /// Tells whoever reads the screen that the value is another one. Costs nothing when nobody
    /// does.
    void announceValue();
};

/// Lets assistive technology see the painted views; once, before the first window.
void installPaintedViewAccessibility();

}  // namespace vantor
