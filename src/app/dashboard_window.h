#pragma once

#include <QWidget>

#include "ui/dashboard/dashboard_view.h"

namespace vantor {

/// The main window.
class DashboardWindow : public QWidget {
  public:
    static constexpr QSize defaultSize{1280, 820};
    static constexpr QSize smallestSize{720, 560};

    explicit DashboardWindow(DashboardView::Environment environment);

    DashboardView& dashboard() { return *dashboard_; }

  private:
    DashboardView* dashboard_;  // owned by this widget, as its child
};

}  // namespace vantor
