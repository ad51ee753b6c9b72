#pragma once

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
#include "platform/temperatures.h"
#include "platform/wall_clock.h"

namespace vantor {

/// Everything that the program asks of one machine. Readers keep the machine alive, because a call
/// may still hang in it after everything else is gone.
class Machine {
  public:
    virtual ~Machine() = default;

    virtual Accelerators& accelerators() = 0;
    virtual GraphicsDevices& graphicsDevices() = 0;
    virtual HostMemory& hostMemory() = 0;
    virtual HostProcessors& hostProcessors() = 0;
    virtual KernelValues& kernelValues() = 0;
    virtual LoadAverages& loadAverages() = 0;
    virtual MountedVolumes& mountedVolumes() = 0;
    virtual NetworkInterfaces& networkInterfaces() = 0;
    virtual PowerSources& powerSources() = 0;
    virtual PrimaryInterface& primaryInterface() = 0;
    virtual ProcessInfo& processInfo() = 0;
    virtual ProcessTable& processTable() = 0;
    virtual Temperatures& temperatures() = 0;
    virtual WallClock& wallClock() = 0;
    virtual const PlatformWords& words() const = 0;
};

}  // namespace vantor
