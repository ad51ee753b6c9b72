#pragma once

#include <optional>

namespace vantor {

/// Temperatures of the machine's chips, in degrees Celsius; absent when no sensor tells a plausible
/// one. Any thread, several at once.
///
/// Linux: hwmon and the thermal zones. macOS: the system management controller and the event
/// system's sensors.
class Temperatures {
  public:
    virtual ~Temperatures() = default;

    /// The hottest processor's.
    virtual std::optional<double> processor() = 0;

    /// That of the graphics processor that is part of the machine's chip; absent where there is
    /// none. Graphics cards tell their own, see platform/accelerators.h.
    virtual std::optional<double> graphics() = 0;
};

}  // namespace vantor
