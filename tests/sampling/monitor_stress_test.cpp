#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "platform/simulated/simulated_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/fake_world.h"
#include "support/threaded_main_loop.h"

/// A monitor on real threads whose user cannot keep still.
namespace vantor::monitor_stress_test {
namespace {

using namespace std::chrono_literals;

class MonitorStress : public testing::Test {
  protected:
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    std::shared_ptr<ThreadedMainLoop> loop = std::make_shared<ThreadedMainLoop>();
    std::shared_ptr<ThreadedSerialQueueFactory> queues =
        std::make_shared<ThreadedSerialQueueFactory>();
    std::thread mainThread;

    // These belong to the main thread.
    std::shared_ptr<AppSettings> settings;
    std::shared_ptr<SystemMonitor> monitor;

    void SetUp() override {
        machine->hostProcessors().growth = {30, 10, 60, 0};
        mainThread = std::thread([this] { loop->run(); });
        onMain([this] {
            settings = makeSettings();
            monitor = SystemMonitor::make(settings, machine, loop, queues);
        });
    }

    void TearDown() override {
        onMain([this] {
            monitor.reset();
            settings.reset();
        });
        EXPECT_TRUE(queues->waitForThreads(20s));
        loop->stop();
        mainThread.join();
    }

    /// Runs `work` on the main thread and waits for it.
    void onMain(UniqueFunction<void()> work) {
        std::promise<void> done;
        loop->post([&] {
            work();
            done.set_value();
        });
        done.get_future().wait();
    }

    /// One restless gesture of the user.
    void gesture(unsigned dice) {
        switch (dice % 7) {
            case 0:
                monitor->togglePause();
                break;
            case 1:
                monitor->start();
                break;
            case 2:
                settings->setRefreshInterval(0.5 + 0.5 * (dice % 4));
                break;
            case 3:
                settings->setHistoryLength(30 + dice % 50);
                break;
            case 4:
                monitor->setDashboardLiveResizeActive(dice % 2 == 0);
                break;
            default:
                monitor->forceRefresh();
                break;
        }
    }
};

TEST_F(MonitorStress, SurvivesRestlessHandsAndThenWorksAsBefore) {
    constexpr int gestures = 6000;
    unsigned dice = 42;
    for (int i = 0; i < gestures; ++i) {
        dice = dice * 1664525u + 1013904223u;
        loop->post([this, turn = dice >> 16] { gesture(turn); });
        clock->wind(1ms);
        if (i % 50 == 0) onMain([] {});
    }
    std::promise<void> committed;
    Subscription observation;
    onMain([&] {
        monitor->setDashboardLiveResizeActive(false);
        if (!monitor->isPaused()) monitor->togglePause();
        observation = monitor->dashboardStateStream().observe(
            [&, told = false](const DashboardState& next) mutable {
                if (next.snapshot.cpu.totalUsage == 0.4 && !std::exchange(told, true)) {
                    committed.set_value();
                }
            });
    });
    // During the pause two readings are needed: one to measure from, and one that says something.
    auto future = committed.get_future();
    for (int i = 0; i < 200 && future.wait_for(5ms) != std::future_status::ready; ++i) {
        onMain([this] { monitor->forceRefresh(); });
    }
    EXPECT_EQ(future.wait_for(0s), std::future_status::ready);
    onMain([&] {
        observation.cancel();
        EXPECT_TRUE(monitor->isPaused());
        EXPECT_FALSE(monitor->isMonitoring());
        EXPECT_LE(monitor->dashboardState().histories.cpu.size(), 79u);
    });
}

TEST_F(MonitorStress, MonitorsComeAndGoWhileTheirReadingsAreUnderWay) {
    for (int i = 0; i < 200; ++i) {
        onMain([this, i] {
            // A machine of its own: the last reading for the monitor before may still be going on.
            const auto its = SimulatedMachine::laptop(clock);
            its->hostProcessors().growth = {1, 1, 1, 1};
            monitor = SystemMonitor::make(settings, its, loop, queues);
            monitor->start();
            if (i % 3 == 0) monitor->forceRefresh();
        });
        if (i % 2 == 0) onMain([this] { monitor->forceRefresh(); });
    }
    onMain([this] { EXPECT_EQ(monitor->generation(), 1u); });
}

}  // namespace
}  // namespace vantor::monitor_stress_test
