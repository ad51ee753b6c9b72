#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "probes/hid_temperature_reader.h"

namespace vantor {

class HardwareTemperatureReader;

/// Where a graphics device's temperature comes from when its driver publishes none. Each is called
/// on the graphics provider's queue; by default nobody knows anything.
struct GPUTemperatureSources {
    using Readings = HIDTemperatureReader::Readings;

    std::function<bool()> isAppleSilicon = [] { return false; };
    /// The hottest of the controller's keys for this chip's graphics; absent where there is no such
    /// key or none answers.
    std::function<std::optional<double>()> hottestGPUKey = [] { return std::optional<double>(); };
    std::function<Readings()> hidReadings = [] {
        return std::make_shared<const std::vector<HIDTemperatureReader::Reading>>();
    };

    /// The machine's own sensors.
    static GPUTemperatureSources of(std::shared_ptr<HardwareTemperatureReader> sensors);
};

/// The temperature of the graphics processor that is part of the machine's chip.
std::optional<double> hardwareGPUTemperature(const GPUTemperatureSources& sources);

}  // namespace vantor
