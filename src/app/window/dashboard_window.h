#pragma once

#include <QWidget>

#include <functional>

#include "app/app_commands.h"
#include "ui/dashboard/dashboard_view.h"

namespace vantor {

/// The main window.
class DashboardWindow : public QWidget {
  public:
    static constexpr QSize defaultSize{1280, 820};
    static constexpr QSize minSize{720, 560};

    /// `onLiveResize` is called when the user begins and ends to resize the window.
    DashboardWindow(DashboardView::Environment environment, AppCommands& commands,
                    std::function<void(bool isActive)> onLiveResize);

    DashboardView& dashboard() { return *dashboard_; }

  private:
    DashboardView* dashboard_ = nullptr;  // owned by this widget, as its child
};

}  // namespace vantor
