#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/system_monitor.h"
#include "support/kept_defaults.h"

namespace vantor {

/// A program without a window has no appearance to change.
class NoAppearance : public ApplicationAppearance {
  public:
    void followSystem() override {}
    void forceDark() override {}
    void forceLight() override {}
};

inline std::shared_ptr<AppSettings> makeSettings() {
    return std::make_shared<AppSettings>(std::make_shared<KeptDefaults>(),
                                         std::make_shared<NoAppearance>());
}

/// Queues that are run by hand and keep a log of what was submitted to which of them, and when.
class LoggedQueues : public SerialQueueFactory {
  public:
    struct Submission {
        std::chrono::nanoseconds at;
        std::string provider;
    };
    using Log = std::vector<Submission>;

    LoggedQueues(std::shared_ptr<FakeSerialQueueFactory> manual, std::shared_ptr<FakeClock> clock)
        : fake_(std::move(manual)), clock_(std::move(clock)) {}

    const Log& log() const { return *log_; }

    std::unique_ptr<SerialQueue> makeQueue(std::string_view label) override {
        auto queue = std::make_unique<Queue>();
        queue->manual = fake_->makeQueue(label);
        queue->provider = label.substr(label.rfind('.') + 1);
        queue->log = log_;
        queue->clock = clock_;
        return queue;
    }

  private:
    struct Queue : SerialQueue {
        std::unique_ptr<SerialQueue> manual;
        std::string provider;
        std::shared_ptr<Log> log;
        std::shared_ptr<FakeClock> clock;
        void submit(Task task) override {
            log->push_back({clock->now(), provider});
            manual->submit(std::move(task));
        }
    };

    std::shared_ptr<FakeSerialQueueFactory> fake_;
    std::shared_ptr<FakeClock> clock_;
    std::shared_ptr<Log> log_ = std::make_shared<Log>();
};

inline std::string queueLabel(std::string_view provider) {
    return "com.kestrone.Vantor.provider." + std::string(provider);
}

/// A monitor with all that it needs, in which time passes only when the test says so.
///
/// Its processors spend 30 ticks for the user and 10 for the kernel out of every 100, so that each
/// cpu reading after the first says 0.4.
class FakeWorld {
  public:
    const std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    const std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    const std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    const std::shared_ptr<FakeSerialQueueFactory> queues =
        std::make_shared<FakeSerialQueueFactory>();
    const std::shared_ptr<AppSettings> settings = makeSettings();
    std::shared_ptr<SystemMonitor> monitor;

    bool providersRun = true;  ///< false: what is submitted to the queues stays there
    int publications = 0;      ///< of the dashboard's state

    explicit FakeWorld(double refreshInterval = 1.0) {
        machine->hostProcessors().growth = {30, 10, 60, 0};
        settings->setRefreshInterval(refreshInterval);
        monitor = SystemMonitor::make(settings, machine, loop, logged_);
        observation_ = monitor->dashboardStateStream().observe(
            [this](const DashboardState&) { ++publications; });
    }

    const DashboardState& state() const { return monitor->dashboardState(); }
    const Histories& histories() const { return state().histories; }
    const Revisions& revisions() const { return state().revisions; }

    /// Runs the queues and the posted tasks until nothing is left to run at this instant.
    void settle() {
        while ((providersRun ? queues->runWaiting() : 0) + loop->runPosted() > 0) {
        }
    }

    /// Lets time pass, from one due timer to the next.
    void advance(std::chrono::nanoseconds by) {
        settle();
        const auto end = clock->now() + by;
        while (loop->nextDue() <= end) {
            clock->setNow(std::max(clock->now(), loop->nextDue()));
            while (loop->runDueTimer())
                settle();
        }
        clock->setNow(end);
        settle();
    }

    /// Starts the monitor and lets the first tick happen.
    void start() {
        monitor->start();
        settle();
    }

    /// The providers that got work since the last call, in order.
    std::vector<std::string> takeSubmissions() {
        std::vector<std::string> providers;
        for (; seen_ < logged_->log().size(); ++seen_) {
            providers.push_back(logged_->log()[seen_].provider);
        }
        return providers;
    }

    /// When that provider got work, in seconds since this world began.
    std::vector<double> submissionTimes(std::string_view provider) const {
        std::vector<double> times;
        for (const auto& [at, name] : logged_->log()) {
            if (name == provider)
                times.push_back(std::chrono::duration<double>(at - began_).count());
        }
        return times;
    }

    std::size_t waiting(std::string_view provider) const {
        return queues->waiting(queueLabel(provider));
    }

    /// Delivers a cpu reading of the present generation.
    void receiveCPU(const CPUStats& stats) { monitor->receiveCPU(stats, monitor->generation()); }

  private:
    const std::chrono::nanoseconds began_ = clock->now();
    const std::shared_ptr<LoggedQueues> logged_ = std::make_shared<LoggedQueues>(queues, clock);
    std::size_t seen_ = 0;
    Subscription observation_;
};

/// The groups in the order in which their providers are asked.
inline const std::vector<std::string> fastGroup{"cpu", "memory", "network", "system"};
inline const std::vector<std::string> allProviders{"cpu",       "memory", "network", "system",
                                                   "processes", "gpu",    "storage", "power"};

}  // namespace vantor
