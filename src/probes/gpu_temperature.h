#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantor {

/// Where a graphics device's temperature comes from when its driver publishes none. Each is called
/// on the graphics provider's queue; by default nobody knows anything.
struct GPUTemperatureSources {
    struct Reading {
        std::string normalizedName;  ///< the sensor's name in lower case
        double value = 0;            ///< degrees Celsius as reported
    };

    std::function<bool()> isAppleSilicon = [] { return false; };
    /// The hottest of the controller's keys for this chip's graphics; absent where there is no such
    /// key or none answers.
    std::function<std::optional<double>()> hottestGPUKey = [] { return std::optional<double>(); };
    std::function<std::vector<Reading>()> hidReadings = [] { return std::vector<Reading>(); };
};

/// Degrees Celsius of a sensor of the event system; absent when it is not one of the graphics
/// processor or its value is no temperature that such a processor has.
std::optional<double> gpuSensorTemperature(std::string_view normalizedName, double value);

/// The largest of those temperatures; absent when there is none.
std::optional<double> hottestGPUSensor(std::span<const GPUTemperatureSources::Reading> readings);

/// The temperature of the graphics processor that is part of the machine's chip.
std::optional<double> hardwareGPUTemperature(const GPUTemperatureSources& sources);

}  // namespace vantor
