#pragma once

#include <QString>

#include <chrono>
#include <memory>

#include "app/build_info.h"
#include "app/dashboard_window.h"
#include "platform/machine.h"
#include "platform/main_loop.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"
#include "ui/app_metadata.h"

namespace vantor {

/// Puts the whole program together and owns it. Needs the toolkit's application object; main
/// thread.
class VantorApp {
  public:
    /// Shows `machine`, with the preferences of `settingsFile`.
    VantorApp(std::shared_ptr<Machine> machine, const QString& settingsFile);
    VantorApp(const VantorApp&) = delete;
    VantorApp& operator=(const VantorApp&) = delete;
    ~VantorApp();

    void openDashboard();

    DashboardWindow* dashboardWindow() { return window_.get(); }
    SystemMonitor& monitor() { return *monitor_; }
    AppSettings& settings() { return *settings_; }

    /// Ends everything without waiting for any probe. False when a probe is still running after
    /// `patience`: the program must then leave without cleaning up under it.
    bool shutDown(std::chrono::milliseconds patience);

  private:
    std::shared_ptr<Machine> machine_;
    std::shared_ptr<MainLoop> mainLoop_;
    std::shared_ptr<ThreadedSerialQueueFactory> queues_;
    std::shared_ptr<AppSettings> settings_;
    std::shared_ptr<SystemMonitor> monitor_;
    BuildInfo buildInfo_;
    AppMetadata metadata_;
    std::unique_ptr<DashboardWindow> window_;
};

/// Runs the program until the user ends it; gives its exit status. May end the process itself when
/// a probe hangs.
int runVantor(int argc, char** argv, const std::shared_ptr<Machine>& machine);

}  // namespace vantor
