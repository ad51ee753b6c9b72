#include "platform/darwin/darwin_temperatures.h"

#include "platform/darwin/hid_sensors.h"

namespace vantor {

DarwinTemperatures::DarwinTemperatures(KernelValues& values, SystemController& controller,
                                       HIDEventSystem& sensors, const ProcessInfo& processInfo)
    : values_(values), smc_(controller), hid_(sensors, processInfo) {}

std::optional<double> DarwinTemperatures::processor() {
    if (!isAppleSilicon()) return smc_.readIntelCPU();
    if (const auto hottest = smc_.readHottest(cachedAppleSiliconCPUKeys())) return hottest;
    return hottestCPUSensor(*hid_.readings());
}

std::optional<double> DarwinTemperatures::graphics() {
    if (!isAppleSilicon()) return std::nullopt;
    if (const auto hottest = smc_.readHottest(cachedAppleSiliconGPUKeys())) return hottest;
    return hottestGPUSensor(*hid_.readings());
}

const ChipPlatform& DarwinTemperatures::platform() {
    std::call_once(platformDetection_, [this] { platform_ = detectPlatform(values_); });
    return platform_;
}

}  // namespace vantor
