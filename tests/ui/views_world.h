#pragma once

#include <memory>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"
#include "support/kept_defaults.h"
#include "ui/app_metadata.h"
#include "ui/card_samples.h"

namespace vantor {

/// Remembers what was asked of it, and leaves the program as it is.
class NotedAppearance : public ApplicationAppearance {
  public:
    void followSystem() override { applied = Appearance::system; }
    void forceDark() override { applied = Appearance::dark; }
    void forceLight() override { applied = Appearance::light; }

    Appearance applied = Appearance::dark;
};

/// A bundle of version 1.2.3.
class NumberedBundle : public BundleInfo {
  public:
    std::optional<std::string> text(std::string_view key) const override {
        return key == "CFBundleShortVersionString" ? std::optional<std::string>("1.2.3")
                                                   : std::nullopt;
    }
};

/// What the panel, the settings and the help are made from. Nothing is read on this machine: what
/// the monitor holds is what is put there.
struct ViewsWorld {
    const std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    const std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    const std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    const std::shared_ptr<FakeSerialQueueFactory> queues =
        std::make_shared<FakeSerialQueueFactory>();
    const std::shared_ptr<KeptDefaults> defaults = std::make_shared<KeptDefaults>();
    const std::shared_ptr<NotedAppearance> appearance = std::make_shared<NotedAppearance>();
    const std::shared_ptr<AppSettings> settings =
        std::make_shared<AppSettings>(defaults, appearance);
    const std::shared_ptr<SystemMonitor> monitor =
        SystemMonitor::make(settings, machine, loop, queues);
    const AppMetadata metadata{NumberedBundle{}};

    /// A state as after a commit.
    static DashboardState committed() {
        DashboardState state = stateWithEverything();
        state.snapshot.timestamp = Timestamp{} + std::chrono::hours(1);
        return state;
    }

    void commit(const DashboardState& state) const { monitor->dashboardStateStream().set(state); }
    void pause(bool isPaused) const { monitor->isPausedStream().set(isPaused); }

    /// Before system version 13, where forms were plain.
    void makeOld() const { machine->processInfo().version = {12, 6, 1}; }
};

}  // namespace vantor
