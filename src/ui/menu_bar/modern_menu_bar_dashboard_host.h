#pragma once

#include <QString>
#include <QWidget>

#include <functional>

#include "ui/menu_bar/menu_bar_dashboard_view.h"

namespace vantor {

/// The panel where windows are opened by their identifier: its first action opens the dashboard's
/// window, or brings it forward.
class ModernMenuBarDashboardHost : public QWidget {
  public:
    using OpenWindow = std::function<void(const QString& identifier)>;

    ModernMenuBarDashboardHost(MenuBarDashboardView::Environment environment,
                               const OpenWindow& openWindow, QWidget* parent = nullptr);

    MenuBarDashboardView& view() { return *view_; }

  private:
    MenuBarDashboardView* view_;  // owned by this widget, as its child
};

}  // namespace vantor
