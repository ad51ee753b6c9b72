#pragma once

#include "ui/dashboard/wrapping_layout.h"

namespace vantor {

/// Gives its content the whole width up to a limit, and centres it in a wider space.
class WidthLimitLayout : public WrappingLayout {
  public:
    explicit WidthLimitLayout(int limit, QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    int layOut(const QRect& area, bool place) const override;

  private:
    int limit_;
};

}  // namespace vantor
