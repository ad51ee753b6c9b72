#pragma once

#include <functional>
#include <memory>

#include "app/window/dashboard_window.h"
#include "app/window/window_activation.h"

namespace vantor {

/// The dashboard's window on older systems: made on first use and reused afterwards. Main thread.
class LegacyDashboardWindowController {
  public:
    /// Under which the window's frame is kept.
    static constexpr const char* frameAutosaveName = "Vantor.LegacyDashboard";

    using MakeWindow = std::function<std::unique_ptr<DashboardWindow>()>;

    explicit LegacyDashboardWindowController(MakeWindow makeWindow)
        : makeWindow_(std::move(makeWindow)) {}

    void open() {
        if (!window_) window_ = makeWindow_();
        bringToFront(*window_, {});
    }
    DashboardWindow* window() { return window_.get(); }
    void release() { window_.reset(); }

  private:
    MakeWindow makeWindow_;
    std::unique_ptr<DashboardWindow> window_;
};

}  // namespace vantor
