#pragma once

#include <memory>

#include "platform/machine.h"
#include "platform/macos/frameworks.h"
#include "platform/macos/mac_accelerators.h"
#include "platform/macos/mac_dynamic_store.h"
#include "platform/macos/mac_graphics_devices.h"
#include "platform/macos/mac_hid_event_system.h"
#include "platform/macos/mac_host_memory.h"
#include "platform/macos/mac_host_processors.h"
#include "platform/macos/mac_kernel_values.h"
#include "platform/macos/mac_load_averages.h"
#include "platform/macos/mac_mounted_volumes.h"
#include "platform/macos/mac_network_interfaces.h"
#include "platform/macos/mac_power_sources.h"
#include "platform/macos/mac_process_info.h"
#include "platform/macos/mac_process_table.h"
#include "platform/macos/mac_system_controller.h"
#include "platform/macos/mac_words.h"
#include "platform/posix/system_wall_clock.h"

namespace vantor {

/// The Mac that the program runs on. Every call is answered here and by nobody else: see
/// answered_calls.cpp.
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

    MacAccelerators& accelerators() override { return accelerators_; }
    MacDynamicStore& dynamicStore() override { return dynamicStore_; }
    MacGraphicsDevices& graphicsDevices() override { return graphicsDevices_; }
    MacHIDEventSystem& hidEventSystem() override { return hidEventSystem_; }
    MacHostMemory& hostMemory() override { return hostMemory_; }
    MacHostProcessors& hostProcessors() override { return hostProcessors_; }
    MacKernelValues& kernelValues() override { return kernelValues_; }
    MacLoadAverages& loadAverages() override { return loadAverages_; }
    MacMountedVolumes& mountedVolumes() override { return mountedVolumes_; }
    MacNetworkInterfaces& networkInterfaces() override { return networkInterfaces_; }
    MacPowerSources& powerSources() override { return powerSources_; }
    MacProcessInfo& processInfo() override { return processInfo_; }
    MacProcessTable& processTable() override { return processTable_; }
    MacSystemController& systemController() override { return systemController_; }
    SystemWallClock& wallClock() override { return wallClock_; }
    const PlatformWords& words() const override { return macWords; }

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
    MacNetworkInterfaces networkInterfaces_;
    MacPowerSources powerSources_;
    MacProcessInfo processInfo_;
    MacProcessTable processTable_;
    MacSystemController systemController_;
    SystemWallClock wallClock_;
};

}  // namespace vantor
