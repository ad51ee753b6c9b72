#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

#include <optional>

namespace vantor {

/// A number with its bounds, for assistive technology.
struct AccessibleRange {
    double value = 0;
    double lowest = 0;
    double highest = 1;
    double step = 0.01;
};

/// A widget that paints itself and has a role, a label and a value for assistive technology. A view
/// that paints several rows has these for each of them. A view repaints only when it is given
/// something new.
class PaintedView : public QWidget {
  public:
    explicit PaintedView(QWidget* parent = nullptr) : QWidget(parent) {}

    virtual QAccessible::Role accessibleRole() const { return QAccessible::StaticText; }
    virtual QString accessibleLabel() const = 0;
    virtual QString accessibleValueText() const { return {}; }

    /// What explains it: its tool tip.
    virtual QString accessibleHelp() const;

    /// Where it shows a share of a whole: that share, 0 to 1.
    virtual std::optional<double> accessibleFraction() const { return std::nullopt; }

    /// Where it shows a number: that number, the share if there is one.
    virtual std::optional<AccessibleRange> accessibleRange() const;

    /// Where the number can be changed, assistive technology changes it with this.
    virtual void setAccessibleNumber(double) {}

    virtual int accessibleRowCount() const { return 0; }
    virtual QString accessibleRowLabel(int) const { return {}; }
    virtual QRect accessibleRowArea(int) const { return {}; }  ///< in this widget
    virtual bool isAccessibleRowChosen(int) const { return false; }

  protected:
    /// Notify assistive technology of a change. They cost nothing where there is none.
    void announceValue();
    void announceName();
    void announceRow(int row);
    void announceRowCount();
    void announceFocus(int row);
};

}  // namespace vantor
