#pragma once

#include <functional>
#include <memory>

#include "platform/process_info.h"
#include "settings/defaults_store.h"

namespace vantor {

/// The program's answers when windows close and when the user starts it again. Stateless. Main
/// thread.
class AppDelegate {
  public:
    AppDelegate(std::shared_ptr<DefaultsStore> defaults, const ProcessInfo& versions,
                std::function<void()> openLegacyDashboard)
        : defaults_(std::move(defaults)),
          versions_(versions),
          openLegacyDashboard_(std::move(openLegacyDashboard)) {}

    /// Whether the program is to end. Reads the store itself, so that what was stored counts and
    /// not a default: a user who never chose keeps the program in the tray.
    bool applicationShouldTerminateAfterLastWindowClosed() const;

    /// Whether the platform is to reopen the window; older systems have it opened here.
    bool applicationShouldHandleReopen(bool hasVisibleWindows) const;

  private:
    std::shared_ptr<DefaultsStore> defaults_;
    const ProcessInfo& versions_;
    std::function<void()> openLegacyDashboard_;
};

}  // namespace vantor
