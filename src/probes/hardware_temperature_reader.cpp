#include "probes/hardware_temperature_reader.h"

#include <utility>

#include "probes/hid_sensors.h"

namespace vantor {

HardwareTemperatureReader::HardwareTemperatureReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)),
      smc_(machine_->systemController()),
      hid_(machine_->hidEventSystem(), machine_->processInfo()) {}

std::optional<double> HardwareTemperatureReader::cpuTemperature() {
    if (!isAppleSilicon()) return smc_.readIntelCPU();
    if (const auto hottest = smc_.readHottest(cachedAppleSiliconCPUKeys())) return hottest;
    return hottestCPUSensor(*hid_.readings());
}

const ChipPlatform& HardwareTemperatureReader::platform() {
    std::call_once(platformDetection_,
                   [this] { platform_ = detectPlatform(machine_->kernelValues()); });
    return platform_;
}

}  // namespace vantor
