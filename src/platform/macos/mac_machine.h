#pragma once

#include <memory>

#include "platform/darwin/darwin_network_interfaces.h"
#include "platform/darwin/darwin_primary_interface.h"
#include "platform/darwin/darwin_sensors.h"
#include "platform/machine.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/graphics/mac_accelerators.h"
#include "platform/macos/graphics/mac_graphics_devices.h"
#include "platform/macos/memory/mac_host_memory.h"
#include "platform/macos/network/mac_dynamic_store.h"
#include "platform/macos/network/mac_interface_calls.h"
#include "platform/macos/power/mac_power_sources.h"
#include "platform/macos/processes/mac_process_table.h"
#include "platform/macos/processor/mac_host_processors.h"
#include "platform/macos/processor/mac_load_averages.h"
#include "platform/macos/sensors/mac_hid_event_system.h"
#include "platform/macos/sensors/mac_system_controller.h"
#include "platform/macos/storage/mac_mounted_volumes.h"
#include "platform/macos/system/mac_kernel_values.h"
#include "platform/macos/system/mac_process_info.h"
#include "platform/macos/system/mac_words.h"
#include "platform/posix/system_wall_clock.h"

namespace vantor {

/// The Mac that the program runs on.
class MacMachine final : public Machine {
  public:
    explicit MacMachine(const std::shared_ptr<const Frameworks>& frameworks = loadFrameworks())
        : accelerators_(frameworks),
          dynamicStore_(frameworks),
          graphicsDevices_(frameworks),
          hidEventSystem_(frameworks),
          mountedVolumes_(frameworks),
          powerSources_(frameworks),
          processInfo_(frameworks),
          systemController_(frameworks) {}

    const MachineCalls& calls() const override { return calls_; }

  private:
    MacAccelerators accelerators_;
    MacDynamicStore dynamicStore_;
    MacGraphicsDevices graphicsDevices_;
    MacHIDEventSystem hidEventSystem_;
    MacHostMemory hostMemory_;
    MacHostProcessors hostProcessors_;
    MacKernelValues kernelValues_;
    MacLoadAverages loadAverages_;
    MacMountedVolumes mountedVolumes_;
    MacInterfaceCalls interfaceCalls_;
    MacPowerSources powerSources_;
    MacProcessInfo processInfo_;
    MacProcessTable processTable_;
    MacSystemController systemController_;
    SystemWallClock wallClock_;
    // What these are read by are calls above.
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
