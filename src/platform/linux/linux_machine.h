#pragma once

#include <memory>

#include "platform/linux/files/linux_calls.h"
#include "platform/linux/graphics/graphics_cards.h"
#include "platform/linux/graphics/linux_accelerators.h"
#include "platform/linux/graphics/linux_graphics_devices.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/memory/linux_host_memory.h"
#include "platform/linux/network/linux_network_interfaces.h"
#include "platform/linux/network/linux_primary_interface.h"
#include "platform/linux/power/linux_power_sources.h"
#include "platform/linux/processes/linux_process_table.h"
#include "platform/linux/processor/linux_host_processors.h"
#include "platform/linux/processor/linux_load_averages.h"
#include "platform/linux/sensors/linux_sensors.h"
#include "platform/linux/storage/linux_mounted_volumes.h"
#include "platform/linux/system/linux_kernel_values.h"
#include "platform/linux/system/linux_process_info.h"
#include "platform/machine.h"
#include "platform/posix/system_wall_clock.h"

namespace vantor {

/// The machine that the program runs on, or one recorded in a folder.
class LinuxMachine : public Machine {
  public:
    explicit LinuxMachine(const LinuxRoots& roots = {},
                          const LinuxCalls& calls = LinuxCalls::live())
        : graphicsCards_(std::make_shared<GraphicsCards>(roots, calls)),
          accelerators_(graphicsCards_),
          graphicsDevices_(graphicsCards_),
          hostMemory_(roots),
          hostProcessors_(roots),
          kernelValues_(roots),
          loadAverages_(roots),
          mountedVolumes_(roots, calls.fileSystems),
          networkInterfaces_(calls.links),
          powerSources_(roots),
          primaryInterface_(roots, calls.routes),
          processInfo_(roots),
          processTable_(roots, calls.processClocks),
          sensors_(roots) {}

    const MachineCalls& calls() const override { return calls_; }

  private:
    std::shared_ptr<GraphicsCards> graphicsCards_;  // for both that tell of them
    LinuxAccelerators accelerators_;
    LinuxGraphicsDevices graphicsDevices_;
    LinuxHostMemory hostMemory_;
    LinuxHostProcessors hostProcessors_;
    LinuxKernelValues kernelValues_;
    LinuxLoadAverages loadAverages_;
    LinuxMountedVolumes mountedVolumes_;
    LinuxNetworkInterfaces networkInterfaces_;
    LinuxPowerSources powerSources_;
    LinuxPrimaryInterface primaryInterface_;
    LinuxProcessInfo processInfo_;
    LinuxProcessTable processTable_;
    LinuxSensors sensors_;
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
        .quitKeys = "Ctrl+Q",
        .meanings = {
            .nominal = "Nominal is the frequency that the processor is made for, as its driver or "
                       "its name tells it, not the present one.",
            .wired = "Wired is memory that cannot be moved out: the kernel's own and what programs "
                     "have locked.",
            .compressed = "Compressed is the memory that zram and zswap keep compressed pages in.",
            .thermalState = "Thermal State compares the thermal zones with their own limits: Fair "
                            "where the kernel begins to slow down, Serious where it is nearly too "
                            "hot, Critical where it switches off.",
            .lowPowerMode = "Low Power Mode is on while the firmware's profile or the processors' "
                            "own preference is to save power."}};
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
                        .words = words_};
};

}  // namespace vantor
