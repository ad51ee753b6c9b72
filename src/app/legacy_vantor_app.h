#pragma once

#include <memory>

#include "app/tray/legacy_menu_bar_controller.h"
#include "app/vantor_app.h"
#include "app/window/legacy_dashboard_window_controller.h"

namespace vantor {

/// The program on systems before 13.0: it makes its window, status item and popover by hand.
class LegacyVantorApp : public VantorApp {
  public:
    explicit LegacyVantorApp(Environment environment);
    ~LegacyVantorApp() override;

    void openDashboard() override {
        closePopover();  // it would stay above the window that it opens
        dashboard_.open();
    }
    DashboardWindow* dashboardWindow() override { return dashboard_.window(); }
    bool shutDown(std::chrono::milliseconds patience) override;

  private:
    LegacyDashboardWindowController dashboard_;
};

}  // namespace vantor
