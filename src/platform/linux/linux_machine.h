#pragma once

#include <memory>

#include "platform/linux/graphics_cards.h"
#include "platform/linux/linux_accelerators.h"
#include "platform/linux/linux_calls.h"
#include "platform/linux/linux_dynamic_store.h"
#include "platform/linux/linux_graphics_devices.h"
#include "platform/linux/linux_hid_event_system.h"
#include "platform/linux/linux_host_memory.h"
#include "platform/linux/linux_host_processors.h"
#include "platform/linux/linux_kernel_values.h"
#include "platform/linux/linux_load_averages.h"
#include "platform/linux/linux_mounted_volumes.h"
#include "platform/linux/linux_network_interfaces.h"
#include "platform/linux/linux_power_sources.h"
#include "platform/linux/linux_process_info.h"
#include "platform/linux/linux_process_table.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/linux_system_controller.h"
#include "platform/linux/processor_sensors.h"
#include "platform/machine.h"
#include "platform/posix/system_wall_clock.h"

namespace vantor {

/// The machine that the program runs on, or one recorded in a folder.
class LinuxMachine : public Machine {
  public:
    explicit LinuxMachine(const LinuxRoots& roots = {},
                          const LinuxCalls& calls = LinuxCalls::live())
        : graphicsCards_(std::make_shared<GraphicsCards>(roots, calls)),
          processorSensors_(std::make_shared<ProcessorSensors>(roots)),
          accelerators_(graphicsCards_),
          dynamicStore_(roots, calls.routes),
          graphicsDevices_(graphicsCards_),
          hidEventSystem_(processorSensors_),
          hostMemory_(roots),
          hostProcessors_(roots),
          kernelValues_(roots),
          loadAverages_(roots),
          mountedVolumes_(roots, calls.fileSystems),
          networkInterfaces_(calls.links),
          powerSources_(roots),
          processInfo_(roots),
          processTable_(roots, calls.processClocks),
          systemController_(processorSensors_) {}

    Accelerators& accelerators() override { return accelerators_; }
    DynamicStore& dynamicStore() override { return dynamicStore_; }
    GraphicsDevices& graphicsDevices() override { return graphicsDevices_; }
    HIDEventSystem& hidEventSystem() override { return hidEventSystem_; }
    HostMemory& hostMemory() override { return hostMemory_; }
    HostProcessors& hostProcessors() override { return hostProcessors_; }
    KernelValues& kernelValues() override { return kernelValues_; }
    LoadAverages& loadAverages() override { return loadAverages_; }
    MountedVolumes& mountedVolumes() override { return mountedVolumes_; }
    NetworkInterfaces& networkInterfaces() override { return networkInterfaces_; }
    PowerSources& powerSources() override { return powerSources_; }
    ProcessInfo& processInfo() override { return processInfo_; }
    ProcessTable& processTable() override { return processTable_; }
    SystemController& systemController() override { return systemController_; }
    WallClock& wallClock() override { return wallClock_; }
    const PlatformWords& words() const override { return words_; }

  private:
    // Each for both that tell of them.
    std::shared_ptr<GraphicsCards> graphicsCards_;
    std::shared_ptr<ProcessorSensors> processorSensors_;
    LinuxAccelerators accelerators_;
    LinuxDynamicStore dynamicStore_;
    LinuxGraphicsDevices graphicsDevices_;
    LinuxHIDEventSystem hidEventSystem_;
    LinuxHostMemory hostMemory_;
    LinuxHostProcessors hostProcessors_;
    LinuxKernelValues kernelValues_;
    LinuxLoadAverages loadAverages_;
    LinuxMountedVolumes mountedVolumes_;
    LinuxNetworkInterfaces networkInterfaces_;
    LinuxPowerSources powerSources_;
    LinuxProcessInfo processInfo_;
    LinuxProcessTable processTable_;
    LinuxSystemController systemController_;
    SystemWallClock wallClock_;
    PlatformWords words_{
        .systemName = "Linux",
        .subtitle = "Live Linux performance intelligence",
        .unknownHardware = "Unknown Computer",
        .noGraphicsTitle = "No Graphics Device",
        .noGraphicsMessage = "The active graphics driver did not expose a graphics device.",
        .noVolumesMessage = "No browsable mounted volume was returned by Linux.",
        // Their drivers tell each process's use to its owner, and the whole to nobody else.
        .graphicsLoadNote = "Load of your own processes",
        .graphicsLoadNoteMark = "Intel",
        .processInterface = "procfs",
        .graphicsInterface = "NVML",
        .graphicsTelemetry = "DRM + NVML",
        .quitKeys = "Ctrl+Q"};
};

}  // namespace vantor
