#pragma once

#include <array>
#include <optional>

namespace vantor {

/// What the sensors of the machine's chips tell; absent when none tells something plausible. Any
/// thread, several at once.
///
/// Linux: hwmon and the thermal zones. macOS: the system management controller and the event
/// system's sensors.
class Sensors {
  public:
    virtual ~Sensors() = default;

    /// The hottest processor's, in degrees Celsius.
    virtual std::optional<double> processorTemperature() = 0;

    /// That of the graphics processor that is part of the machine's chip, in degrees Celsius;
    /// absent where there is none. Graphics cards tell their own, see platform/accelerators.h.
    virtual std::optional<double> graphicsTemperature() = 0;
};

/// A sensor's call with its name in reports.
struct SensorCall {
    const char* name;
    std::optional<double> (Sensors::*read)();
};
inline constexpr std::array sensorCalls{
    SensorCall{"processor, degrees Celsius", &Sensors::processorTemperature},
    SensorCall{"graphics of the chip, degrees Celsius", &Sensors::graphicsTemperature}};

}  // namespace vantor
