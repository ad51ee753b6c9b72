#pragma once

#include <memory>
#include <utility>

#include "platform/linux/sensors/processor_sensors.h"
#include "platform/temperatures.h"

namespace vantor {

/// The processor's is the hottest package's, else the hottest core's. Of graphics that are part of
/// the chip there is none: their drivers tell it.
class LinuxTemperatures : public Temperatures {
  public:
    explicit LinuxTemperatures(std::shared_ptr<ProcessorSensors> sensors)
        : sensors_(std::move(sensors)) {}

    std::optional<double> processor() override;
    std::optional<double> graphics() override { return std::nullopt; }

  private:
    std::shared_ptr<ProcessorSensors> sensors_;
};

}  // namespace vantor
