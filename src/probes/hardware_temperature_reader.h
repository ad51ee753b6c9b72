#pragma once

#include <memory>
#include <mutex>
#include <optional>

#include "platform/machine.h"
#include "probes/chip_family.h"
#include "probes/hid_temperature_reader.h"
#include "probes/smc_temperature_reader.h"

namespace vantor {

/// The machine's temperature sensors, shared by whoever asks for a temperature: what is known of
/// the platform and of the sensors is found out once for all of them. Any thread, several at once.
class HardwareTemperatureReader {
  public:
    explicit HardwareTemperatureReader(std::shared_ptr<Machine> machine);

    /// The processor's temperature in degrees Celsius; absent when no sensor tells a plausible one.
    std::optional<double> cpuTemperature();

    bool isAppleSilicon() { return platform().isAppleSilicon; }

    /// The controller's keys for the chip's sensors; empty on machines without Apple silicon and
    /// for chips whose keys nobody knows.
    SMCTemperatureReader::Keys cachedAppleSiliconCPUKeys() {
        return cpuTemperatureKeys(platform().family);
    }
    SMCTemperatureReader::Keys cachedAppleSiliconGPUKeys() {
        return gpuTemperatureKeys(platform().family);
    }

    SMCTemperatureReader& smc() { return smc_; }
    HIDTemperatureReader& hid() { return hid_; }

  private:
    /// Detected on the first call.
    const ChipPlatform& platform();

    std::shared_ptr<Machine> machine_;
    std::once_flag platformDetection_;
    ChipPlatform platform_;
    SMCTemperatureReader smc_;
    HIDTemperatureReader hid_;
};

}  // namespace vantor
