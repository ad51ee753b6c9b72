#pragma once

#include <functional>

#include "platform/accelerators.h"
#include "platform/graphics_devices.h"
#include "platform/host_memory.h"
#include "platform/host_processors.h"
#include "platform/kernel_values.h"
#include "platform/load_averages.h"
#include "platform/mounted_volumes.h"
#include "platform/network_interfaces.h"
#include "platform/platform_words.h"
#include "platform/power_sources.h"
#include "platform/primary_interface.h"
#include "platform/process_info.h"
#include "platform/process_table.h"
#include "platform/sensors.h"
#include "platform/wall_clock.h"

namespace vantor {

/// What a machine answers with: one of each kind of call. Nothing may be left out.
struct MachineCalls {
    std::reference_wrapper<Accelerators> accelerators;
    std::reference_wrapper<GraphicsDevices> graphicsDevices;
    std::reference_wrapper<HostMemory> hostMemory;
    std::reference_wrapper<HostProcessors> hostProcessors;
    std::reference_wrapper<KernelValues> kernelValues;
    std::reference_wrapper<LoadAverages> loadAverages;
    std::reference_wrapper<MountedVolumes> mountedVolumes;
    std::reference_wrapper<NetworkInterfaces> networkInterfaces;
    std::reference_wrapper<PowerSources> powerSources;
    std::reference_wrapper<PrimaryInterface> primaryInterface;
    std::reference_wrapper<ProcessInfo> processInfo;
    std::reference_wrapper<ProcessTable> processTable;
    std::reference_wrapper<Sensors> sensors;
    std::reference_wrapper<WallClock> wallClock;
    std::reference_wrapper<const PlatformWords> words;
};

/// Everything that the program asks of one machine. Readers keep the machine alive, because a call
/// may still hang in it after everything else is gone.
///
/// A machine that asks another one for the most part copies that one's calls and puts its own in
/// the place of some.
class Machine {
  public:
    virtual ~Machine() = default;

    virtual const MachineCalls& calls() const = 0;

    Accelerators& accelerators() { return calls().accelerators; }
    GraphicsDevices& graphicsDevices() { return calls().graphicsDevices; }
    HostMemory& hostMemory() { return calls().hostMemory; }
    HostProcessors& hostProcessors() { return calls().hostProcessors; }
    KernelValues& kernelValues() { return calls().kernelValues; }
    LoadAverages& loadAverages() { return calls().loadAverages; }
    MountedVolumes& mountedVolumes() { return calls().mountedVolumes; }
    NetworkInterfaces& networkInterfaces() { return calls().networkInterfaces; }
    PowerSources& powerSources() { return calls().powerSources; }
    PrimaryInterface& primaryInterface() { return calls().primaryInterface; }
    ProcessInfo& processInfo() { return calls().processInfo; }
    ProcessTable& processTable() { return calls().processTable; }
    Sensors& sensors() { return calls().sensors; }
    WallClock& wallClock() { return calls().wallClock; }
    const PlatformWords& words() const { return calls().words; }
};

}  // namespace vantor
