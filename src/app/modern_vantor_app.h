#pragma once

#include <memory>

#include "app/vantor_app.h"

namespace vantor {

/// The program on systems from 13.0 on: one window, "dashboard", that is made when it is first
/// opened, and the menu bar item.
class ModernVantorApp : public VantorApp {
  public:
    explicit ModernVantorApp(Environment environment);
    ~ModernVantorApp() override;

    void openDashboard() override;
    DashboardWindow* dashboardWindow() override { return window_.get(); }
    bool shutDown(std::chrono::milliseconds patience) override;

    /// Opens the window of that identifier, or brings it forward; there is one, "dashboard".
    void openWindow(const QString& identifier);

  private:
    std::unique_ptr<DashboardWindow> window_;
};

}  // namespace vantor
