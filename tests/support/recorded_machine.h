#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/linux/linux_machine.h"
#include "platform/simulated/fake_clock.h"
#include "support/recorded_tree.h"

namespace vantor {

/// The surroundings of a recorded machine, with an uptime that is wound by hand.
class RecordedProcessInfo : public ProcessInfo {
  public:
    RecordedProcessInfo(ProcessInfo& recorded, std::shared_ptr<const FakeClock> clock)
        : recorded_(recorded), clock_(std::move(clock)) {}

    double systemUptime() const override { return clock_->seconds(); }
    double secondsSinceBoot() const override { return recorded_.secondsSinceBoot(); }
    std::int64_t processorCount() const override { return recorded_.processorCount(); }
    std::int64_t activeProcessorCount() const override { return recorded_.activeProcessorCount(); }
    std::uint64_t physicalMemory() const override { return recorded_.physicalMemory(); }
    void hostName(std::string& name) const override { recorded_.hostName(name); }
    Version operatingSystemVersion() const override { return recorded_.operatingSystemVersion(); }
    std::optional<std::string> operatingSystemName() const override {
        return recorded_.operatingSystemName();
    }
    bool isOperatingSystemAtLeast(int major, int minor, int patch) const override {
        return recorded_.isOperatingSystemAtLeast(major, minor, patch);
    }
    int thermalState() override { return recorded_.thermalState(); }
    bool isLowPowerModeEnabled() override { return recorded_.isLowPowerModeEnabled(); }

  private:
    ProcessInfo& recorded_;
    std::shared_ptr<const FakeClock> clock_;
};

/// A date that stands still.
class StoppedWallClock : public WallClock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::sys_days{std::chrono::January / 1 / 2026};
    }
};

/// The Linux adapters on a machine recorded in tests/machines.
class RecordedMachine : public Machine {
  public:
    explicit RecordedMachine(const std::string& name);
    /// On a tree that others may share, and damage.
    explicit RecordedMachine(std::shared_ptr<const RecordedTree> tree);
    /// On a clock that others go by, too; it is set to the recording's time.
    RecordedMachine(std::shared_ptr<const RecordedTree> tree, std::shared_ptr<FakeClock> clock);

    /// Lets time pass; what has changed by then is what the recording's second pass says.
    void advance(double seconds);
    /// Lets time pass and nothing change.
    void wind(double seconds);
    /// The same with processors that do some work meanwhile, or there would be no reading of them.
    void work(double seconds);

    const RecordedTree& tree() const { return *tree_; }

    const MachineCalls& calls() const override { return calls_; }

  protected:
    /// To put others in their places.
    MachineCalls& ownCalls() { return calls_; }

  private:
    std::shared_ptr<const RecordedTree> tree_;
    std::shared_ptr<FakeClock> clock_;
    std::shared_ptr<Machine> adapters_;
    RecordedProcessInfo processInfo_;
    StoppedWallClock wallClock_;
    MachineCalls calls_;
};

}  // namespace vantor
