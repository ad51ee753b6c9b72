#pragma once

#include <optional>

#include "platform/linux/sensors/processor_sensors.h"
#include "platform/sensors.h"

namespace vantor {

/// The processor's temperature is the hottest package's, else the hottest core's. Of graphics that
/// are part of the chip there is none: their drivers tell it.
class LinuxSensors : public Sensors {
  public:
    explicit LinuxSensors(const LinuxRoots& roots) : processors_(roots) {}

    std::optional<double> processorTemperature() override;
    std::optional<double> graphicsTemperature() override { return std::nullopt; }

  private:
    ProcessorSensors processors_;
};

}  // namespace vantor
