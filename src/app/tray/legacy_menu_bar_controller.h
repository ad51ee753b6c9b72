#pragma once

#include <memory>

#include "app/tray/menu_bar_controller.h"
#include "platform/process_info.h"

namespace vantor {

/// The status item and popover of older systems.
class LegacyMenuBarController : public MenuBarController {
  public:
    using MenuBarController::MenuBarController;
};

/// Configures the menu bar controller, on older systems only: newer ones make their item
/// themselves.
class LegacyLifecycleBridge {
  public:
    LegacyLifecycleBridge(const ProcessInfo& versions, LegacyMenuBarController& menuBar)
        : versions_(versions), menuBar_(menuBar) {}

    void update(const std::shared_ptr<AppSettings>& settings,
                const std::shared_ptr<SystemMonitor>& monitor) {
        if (versions_.isOperatingSystemAtLeast(13, 0, 0)) return;
        menuBar_.configure(settings, monitor);
    }

  private:
    const ProcessInfo& versions_;
    LegacyMenuBarController& menuBar_;
};

}  // namespace vantor
