#include "probes/gpu_temperature.h"

#include <algorithm>

namespace vantor {

namespace {

bool isGPUSensor(std::string_view name) {
    return name.starts_with("gpu mtr temp sensor") || name.starts_with("pmu2 tdie") ||
           name.starts_with("pmu2 tdev") || (name.starts_with("pmu tp") && name.ends_with("g")) ||
           name.find("gpu") != name.npos;
}

}  // namespace

std::optional<double> gpuSensorTemperature(std::string_view normalizedName, double value) {
    if (!isGPUSensor(normalizedName)) return std::nullopt;
    // These sensors report in 256ths of a degree on some chips.
    if (value > 130 && normalizedName.find("tdev") != normalizedName.npos) value *= 0.00390625;
    // Not fulfilled by what is no number.
    if (!(value > 0 && value < 150)) return std::nullopt;
    return value;
}

std::optional<double> hottestGPUSensor(std::span<const GPUTemperatureSources::Reading> readings) {
    std::optional<double> hottest;
    for (const auto& [name, value] : readings) {
        // An absent temperature is below every other.
        hottest = std::max(hottest, gpuSensorTemperature(name, value));
    }
    return hottest;
}

std::optional<double> hardwareGPUTemperature(const GPUTemperatureSources& sources) {
    if (!sources.isAppleSilicon()) return std::nullopt;
    if (const auto hottest = sources.hottestGPUKey()) return hottest;
    return hottestGPUSensor(sources.hidReadings());
}

}  // namespace vantor
