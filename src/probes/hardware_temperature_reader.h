#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "platform/machine.h"

namespace vantor {

/// The temperatures of the machine's chips for the readers that publish them, in degrees Celsius;
/// absent when no sensor has a plausible one. Keeps the machine alive. Any thread, several at
/// once: what is known of the sensors is kept by the machine, once for all readers.
class HardwareTemperatureReader {
  public:
    explicit HardwareTemperatureReader(std::shared_ptr<Machine> machine)
        : machine_(std::move(machine)) {}

    std::optional<double> cpuTemperature() const {
        return machine_->sensors().processorTemperature();
    }

    /// Of the graphics processor that is part of the machine's chip.
    std::optional<double> gpuTemperature() const {
        return machine_->sensors().graphicsTemperature();
    }

  private:
    std::shared_ptr<Machine> machine_;
};

}  // namespace vantor
