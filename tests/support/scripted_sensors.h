#pragma once

#include <functional>
#include <optional>

#include "platform/sensors.h"

namespace vantor {

/// Sensors that answer by script; by default every one is absent.
class ScriptedSensors : public Sensors {
  public:
    using Answer = std::function<std::optional<double>()>;

    Answer processor = [] { return std::optional<double>(); };
    Answer graphics = [] { return std::optional<double>(); };

    std::optional<double> processorTemperature() override { return processor(); }
    std::optional<double> graphicsTemperature() override { return graphics(); }
};

}  // namespace vantor
