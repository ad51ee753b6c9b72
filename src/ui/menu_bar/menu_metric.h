#pragma once

#include <QColor>
#include <QString>

#include "ui/components/painted_view.h"

namespace vantor {

/// A share of a whole as a large figure over a bar, under its name.
struct MenuMetric {
    QString title;
    QString value;
    double fraction = 0;  ///< 0 to 1; not a number where it is not known
    QColor color;

    bool operator==(const MenuMetric& other) const;
};

/// Draws it on a tile across its whole width.
class MenuMetricView : public PaintedView {
  public:
    explicit MenuMetricView(MenuMetric metric, QWidget* parent = nullptr);

    void show(const MenuMetric& metric);
    const MenuMetric& shown() const { return metric_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QString accessibleLabel() const override { return metric_.title; }
    QString accessibleValueText() const override { return metric_.value; }
    std::optional<double> accessibleFraction() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    MenuMetric metric_;
};

}  // namespace vantor
