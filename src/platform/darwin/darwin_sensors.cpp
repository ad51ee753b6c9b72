#include "platform/darwin/darwin_sensors.h"

#include "platform/darwin/hid_sensors.h"

namespace vantor {

DarwinSensors::DarwinSensors(KernelValues& values, SystemController& controller,
                             HIDEventSystem& sensors, const ProcessInfo& processInfo)
    : values_(values), smc_(controller), hid_(sensors, processInfo) {}

std::optional<double> DarwinSensors::processorTemperature() {
    if (!isAppleSilicon()) return smc_.readIntelCPU();
    if (const auto hottest = smc_.readHottest(cachedAppleSiliconCPUKeys())) return hottest;
    return hottestCPUSensor(*hid_.readings());
}

std::optional<double> DarwinSensors::graphicsTemperature() {
    if (!isAppleSilicon()) return std::nullopt;
    if (const auto hottest = smc_.readHottest(cachedAppleSiliconGPUKeys())) return hottest;
    return hottestGPUSensor(*hid_.readings());
}

const ChipPlatform& DarwinSensors::platform() {
    std::call_once(platformDetection_, [this] { platform_ = detectPlatform(values_); });
    return platform_;
}

}  // namespace vantor
