#pragma once

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "platform/darwin/darwin_network_interfaces.h"
#include "platform/darwin/darwin_primary_interface.h"
#include "platform/darwin/darwin_sensors.h"
#include "platform/machine.h"
#include "platform/macos/system/mac_words.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/simulated_accelerators.h"
#include "platform/simulated/simulated_dynamic_store.h"
#include "platform/simulated/simulated_graphics_devices.h"
#include "platform/simulated/simulated_hid_event_system.h"
#include "platform/simulated/simulated_host_memory.h"
#include "platform/simulated/simulated_host_processors.h"
#include "platform/simulated/simulated_interface_calls.h"
#include "platform/simulated/simulated_kernel_values.h"
#include "platform/simulated/simulated_mounted_volumes.h"
#include "platform/simulated/simulated_power_sources.h"
#include "platform/simulated/simulated_process_table.h"
#include "platform/simulated/simulated_system_controller.h"

namespace vantor {

/// Load averages by script.
class SimulatedLoadAverages : public LoadAverages {
  public:
    std::vector<double> values{0.5, 0.25, 0.125};
    int answer = 3;  ///< what the call returns; below 1 is a failure

    int getloadavg(std::span<double> averages) override;
};

/// Surroundings by script; the uptime is the wound clock's.
class SimulatedProcessInfo : public ProcessInfo {
  public:
    explicit SimulatedProcessInfo(std::shared_ptr<const FakeClock> clock)
        : clock_(std::move(clock)) {}

    std::int64_t processors = 4;
    std::int64_t activeProcessors = 4;
    std::array<int, 3> version{14, 0, 0};
    std::optional<std::string> systemName;
    std::string host = "simulated.local";
    std::uint64_t memory = std::uint64_t{16} << 30;
    int thermal = 0;
    bool lowPowerMode = false;

    double systemUptime() const override { return clock_->seconds(); }
    double secondsSinceBoot() const override { return clock_->seconds(); }
    std::int64_t processorCount() const override { return processors; }
    std::int64_t activeProcessorCount() const override { return activeProcessors; }
    std::uint64_t physicalMemory() const override { return memory; }
    void hostName(std::string& name) const override { name = host; }
    Version operatingSystemVersion() const override { return {version[0], version[1], version[2]}; }
    std::optional<std::string> operatingSystemName() const override { return systemName; }
    bool isOperatingSystemAtLeast(int major, int minor, int patch) const override;
    int thermalState() override { return thermal; }
    bool isLowPowerModeEnabled() override { return lowPowerMode; }

  private:
    std::shared_ptr<const FakeClock> clock_;
};

/// A date that follows the wound clock from a fixed day on.
class SimulatedWallClock : public WallClock {
  public:
    explicit SimulatedWallClock(std::shared_ptr<const FakeClock> clock)
        : clock_(std::move(clock)) {}
    std::chrono::system_clock::time_point now() const override;

  private:
    std::shared_ptr<const FakeClock> clock_;
};

/// A whole machine made of numbers and a clock wound by hand: deterministic and scriptable. A Mac,
/// as far as the calls go that its interfaces and temperatures are read by.
class SimulatedMachine : public Machine {
  public:
    explicit SimulatedMachine(std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

    /// A laptop with four processors and a name, a wireless network and a tunnel, one volume, a
    /// battery at 80 % with 200 minutes left, and graphics in the system's memory.
    static std::shared_ptr<SimulatedMachine> laptop(
        std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

    /// The same processors with many interfaces and volumes, no power source, and two graphics
    /// devices with memory of their own.
    static std::shared_ptr<SimulatedMachine> desktop(
        std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

    /// A machine on which every call fails.
    static std::shared_ptr<SimulatedMachine> broken(
        std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

    const std::shared_ptr<FakeClock>& clock() const { return clock_; }

    const MachineCalls& calls() const override { return calls_; }
    /// To put others in their places.
    MachineCalls& calls() { return calls_; }

    // The same calls, to be scripted.
    SimulatedAccelerators& accelerators() { return accelerators_; }
    SimulatedGraphicsDevices& graphicsDevices() { return graphicsDevices_; }
    SimulatedHostMemory& hostMemory() { return hostMemory_; }
    SimulatedHostProcessors& hostProcessors() { return hostProcessors_; }
    SimulatedKernelValues& kernelValues() { return kernelValues_; }
    SimulatedLoadAverages& loadAverages() { return loadAverages_; }
    SimulatedMountedVolumes& mountedVolumes() { return mountedVolumes_; }
    SimulatedPowerSources& powerSources() { return powerSources_; }
    SimulatedProcessInfo& processInfo() { return processInfo_; }
    SimulatedProcessTable& processTable() { return processTable_; }
    SimulatedWallClock& wallClock() { return wallClock_; }
    DarwinNetworkInterfaces& networkInterfaces() { return networkInterfaces_; }
    DarwinPrimaryInterface& primaryInterface() { return primaryInterface_; }
    DarwinSensors& sensors() { return sensors_; }
    // What these ask.
    SimulatedInterfaceCalls& interfaceCalls() { return interfaceCalls_; }
    SimulatedDynamicStore& dynamicStore() { return dynamicStore_; }
    SimulatedHIDEventSystem& hidEventSystem() { return hidEventSystem_; }
    SimulatedSystemController& systemController() { return systemController_; }

  private:
    std::shared_ptr<FakeClock> clock_;
    SimulatedAccelerators accelerators_;
    SimulatedDynamicStore dynamicStore_;
    SimulatedGraphicsDevices graphicsDevices_;
    SimulatedHIDEventSystem hidEventSystem_;
    SimulatedHostMemory hostMemory_;
    SimulatedHostProcessors hostProcessors_;
    SimulatedKernelValues kernelValues_;
    SimulatedLoadAverages loadAverages_;
    SimulatedMountedVolumes mountedVolumes_;
    SimulatedInterfaceCalls interfaceCalls_;
    SimulatedPowerSources powerSources_;
    SimulatedProcessInfo processInfo_;
    SimulatedProcessTable processTable_;
    SimulatedSystemController systemController_;
    SimulatedWallClock wallClock_;
    DarwinNetworkInterfaces networkInterfaces_{interfaceCalls_};
    DarwinPrimaryInterface primaryInterface_{dynamicStore_};
    DarwinSensors sensors_{kernelValues_, systemController_, hidEventSystem_, processInfo_};
    MachineCalls calls_{.accelerators = accelerators_,
                        .graphicsDevices = graphicsDevices_,
                        .hostMemory = hostMemory_,
                        .hostProcessors = hostProcessors_,
                        .kernelValues = kernelValues_,
                        .loadAverages = loadAverages_,
                        .mountedVolumes = mountedVolumes_,
                        .networkInterfaces = networkInterfaces_,
                        .powerSources = powerSources_,
                        .primaryInterface = primaryInterface_,
                        .processInfo = processInfo_,
                        .processTable = processTable_,
                        .sensors = sensors_,
                        .wallClock = wallClock_,
                        .words = macWords};
};

}  // namespace vantor
