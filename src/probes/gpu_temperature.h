#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "probes/hardware_temperature_reader.h"

namespace vantor {

/// Where a graphics device's temperature comes from when its driver publishes none. Called on the
/// graphics provider's queue; by default every temperature is absent.
struct GPUTemperatureSources {
    /// Of the graphics processor that is part of the machine's chip.
    std::function<std::optional<double>()> hardware = [] { return std::optional<double>(); };

    /// The machine's own sensors.
    static GPUTemperatureSources of(std::shared_ptr<HardwareTemperatureReader> sensors) {
        return {[sensors = std::move(sensors)] { return sensors->gpuTemperature(); }};
    }
};

}  // namespace vantor
