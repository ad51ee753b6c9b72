#pragma once

#include <QApplication>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/fake_export_platform.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"
#include "support/kept_defaults.h"
#include "ui/app_metadata.h"
#include "ui/dashboard/dashboard_view.h"
#include "ui/rendering.h"

namespace vantor {

/// Puts the palettes of the tests on the whole program.
class TestAppearance : public ApplicationAppearance {
  public:
    void followSystem() override { forceDark(); }
    void forceDark() override { QApplication::setPalette(paletteOf(ColorScheme::dark)); }
    void forceLight() override { QApplication::setPalette(paletteOf(ColorScheme::light)); }
};

/// What the program's bundle says in tests.
class TestBundle : public BundleInfo {
  public:
    std::optional<std::string> text(std::string_view key) const override {
        return key == "CFBundleShortVersionString" ? std::optional<std::string>("1.2.3")
                                                   : std::nullopt;
    }
};

/// A dashboard on a simulated laptop on which time passes only when the test says so.
///
/// Its processors spend 30 ticks for the user and 10 for the kernel out of every 100, so that each
/// reading after the first says 40 %.
struct DashboardWorld {
    const std::shared_ptr<FakeClock> clock;
    const std::shared_ptr<SimulatedMachine> machine;  ///< none when another kind of host is shown
    const std::shared_ptr<Machine> host;
    const std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    const std::shared_ptr<FakeSerialQueueFactory> queues =
        std::make_shared<FakeSerialQueueFactory>();
    const std::shared_ptr<KeptDefaults> defaults = std::make_shared<KeptDefaults>();
    const std::shared_ptr<AppSettings> settings =
        std::make_shared<AppSettings>(defaults, std::make_shared<TestAppearance>());
    FakeExportPlatform user;  ///< is asked where to save
    const std::shared_ptr<SystemMonitor> monitor =
        SystemMonitor::make(settings, host, loop, queues, user.platform());
    AppMetadata metadata{TestBundle{}};
    int quits = 0;
    int firstFrames = 0;
    std::function<void()> onFirstLiveFrame = [this] { ++firstFrames; };
    std::unique_ptr<DashboardView> view;

    DashboardWorld() : DashboardWorld(std::make_shared<FakeClock>()) {
        machine->hostProcessors().growth = {30, 10, 60, 0};
    }

    /// On another machine, which lives by that clock.
    DashboardWorld(std::shared_ptr<FakeClock> itsClock,
                   std::shared_ptr<SimulatedMachine> itsMachine)
        : clock(std::move(itsClock)), machine(std::move(itsMachine)), host(machine) {}
    DashboardWorld(std::shared_ptr<FakeClock> itsClock, std::shared_ptr<Machine> itsHost)
        : clock(std::move(itsClock)), host(std::move(itsHost)) {}

    /// Makes the view, without showing it yet.
    DashboardView& make() {
        view = std::make_unique<DashboardView>(
            DashboardView::Environment{settings, monitor, host, loop, metadata, AdaptiveColumns{},
                                       [this] { ++quits; }, [this] { onFirstLiveFrame(); }});
        return *view;
    }

    DashboardView& open(QSize size = {1280, 820}) {
        if (!view) make();
        view->setVisible(true);
        view->resize(size);  // after it is shown: a window is opened no larger than the screen
        settle();
        return *view;
    }

    explicit DashboardWorld(const std::shared_ptr<FakeClock>& itsClock)
        : DashboardWorld(itsClock, SimulatedMachine::laptop(itsClock)) {}

    /// Runs all work that is left to do at this instant, and paints nothing of it yet.
    void work() {
        while (queues->runWaiting() + loop->runPosted() > 0) {
        }
    }

    /// Runs everything that is left to run at this instant.
    void settle() {
        work();
        settleEvents();
    }

    /// Lets time pass, from one due timer to the next.
    void advance(std::chrono::nanoseconds by) {
        pass(by, [this] { settle(); });
    }

    /// The same, with all painting left to do.
    void advanceUnpainted(std::chrono::nanoseconds by) {
        pass(by, [this] { work(); });
    }

    /// Until the second reading, the first that says anything, is on the screen.
    void goLive() { advance(std::chrono::milliseconds(1100)); }

  private:
    template <class Settle>
    void pass(std::chrono::nanoseconds by, Settle&& settleNow) {
        settleNow();
        const auto end = clock->now() + by;
        while (loop->nextDue() <= end) {
            clock->setNow(std::max(clock->now(), loop->nextDue()));
            while (loop->runDueTimer())
                settleNow();
        }
        clock->setNow(end);
        settleNow();
    }
};

}  // namespace vantor
