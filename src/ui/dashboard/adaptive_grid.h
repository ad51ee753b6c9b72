#pragma once

#include "ui/dashboard/wrapping_layout.h"

namespace vantor {

/// As many columns as fit, each between a minimum and a maximum width.
struct AdaptiveColumns {
    double minimum = 430;
    double maximum = 680;
    double spacing = 16;

    /// At least one, however narrow the space.
    int count(double available) const;

    /// For that many items: fewer columns where as many rows of them leave no gap at the end, if
    /// they fill the width or the last row would have one item alone.
    int balancedCount(double available, int items) const;

    /// Of one of as many as fit, and of one of `columns`.
    double width(double available) const { return width(available, count(available)); }
    double width(double available, int columns) const;

    /// Of all columns and the space between them.
    double usedWidth(double available, int items) const;

    bool operator==(const AdaptiveColumns&) const = default;
};

/// Lays widgets out row by row in such columns; the cells of a row are as high as its highest, and
/// the columns are centred.
class AdaptiveGridLayout : public WrappingLayout {
  public:
    explicit AdaptiveGridLayout(AdaptiveColumns columns, QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    int layOut(const QRect& area, bool place) const override;

  private:
    AdaptiveColumns columns_;
};

}  // namespace vantor
