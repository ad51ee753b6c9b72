#include "probes/gpu_temperature.h"

#include <utility>

#include "probes/hardware_temperature_reader.h"
#include "probes/hid_sensors.h"

namespace vantor {

GPUTemperatureSources GPUTemperatureSources::of(
    std::shared_ptr<HardwareTemperatureReader> sensors) {
    GPUTemperatureSources sources;
    sources.isAppleSilicon = [sensors] { return sensors->isAppleSilicon(); };
    sources.hottestGPUKey = [sensors] {
        return sensors->smc().readHottest(sensors->cachedAppleSiliconGPUKeys());
    };
    sources.hidReadings = [sensors] { return sensors->hid().readings(); };
    return sources;
}

std::optional<double> hardwareGPUTemperature(const GPUTemperatureSources& sources) {
    if (!sources.isAppleSilicon()) return std::nullopt;
    if (const auto hottest = sources.hottestGPUKey()) return hottest;
    return hottestGPUSensor(*sources.hidReadings());
}

}  // namespace vantor
