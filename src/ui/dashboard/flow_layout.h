#pragma once

#include "ui/dashboard/wrapping_layout.h"

namespace vantor {

/// Lays widgets out in a row that wraps, each line centred vertically.
class FlowLayout : public WrappingLayout {
  public:
    explicit FlowLayout(int spacing, QWidget* parent = nullptr);

    QSize sizeHint() const override;  ///< of everything in one line

  protected:
    int layOut(const QRect& area, bool place) const override;
};

}  // namespace vantor
