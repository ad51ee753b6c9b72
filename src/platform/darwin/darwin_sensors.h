#pragma once

#include <mutex>

#include "platform/darwin/chip_family.h"
#include "platform/darwin/hid_temperature_reader.h"
#include "platform/darwin/smc_temperature_reader.h"
#include "platform/sensors.h"

namespace vantor {

/// The sensors of a Mac. With Apple silicon the controller's keys for the chip's family, else
/// the event system's sensors; of other processors the controller's keys alone, and no graphics.
/// What it is given must outlive it.
class DarwinSensors : public Sensors {
  public:
    DarwinSensors(KernelValues& values, SystemController& controller, HIDEventSystem& sensors,
                  const ProcessInfo& processInfo);

    std::optional<double> processorTemperature() override;
    std::optional<double> graphicsTemperature() override;

    bool isAppleSilicon() { return platform().isAppleSilicon; }

    /// The controller's keys for the chip's sensors; empty on machines without Apple silicon and
    /// for chips whose keys are unknown.
    SMCTemperatureReader::Keys cachedAppleSiliconCPUKeys() {
        return cpuTemperatureKeys(platform().family);
    }
    SMCTemperatureReader::Keys cachedAppleSiliconGPUKeys() {
        return gpuTemperatureKeys(platform().family);
    }

  private:
    /// Detected on the first call.
    const ChipPlatform& platform();

    KernelValues& values_;
    std::once_flag platformDetection_;
    ChipPlatform platform_;
    SMCTemperatureReader smc_;
    HIDTemperatureReader hid_;
};

}  // namespace vantor
