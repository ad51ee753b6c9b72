#pragma once

#include "ui/dashboard/wrapping_layout.h"

namespace vantor {

/// Gives what it holds the whole width up to a limit; a wider space leaves room on both sides
/// alike.
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
