#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "platform/machine.h"

namespace vantor {

/// The machine's temperature sensors, shared by all readers of a temperature, in degrees Celsius;
/// absent when no sensor has a plausible one. Keeps the machine alive. Any thread, several at
/// once: what is known of the sensors is kept by the machine, once for all readers.
class HardwareTemperatureReader {
  public:
    explicit HardwareTemperatureReader(std::shared_ptr<Machine> machine)
        : machine_(std::move(machine)) {}

    std::optional<double> cpuTemperature() { return machine_->temperatures().processor(); }

    /// Of the graphics processor that is part of the machine's chip.
    std::optional<double> gpuTemperature() { return machine_->temperatures().graphics(); }

  private:
    std::shared_ptr<Machine> machine_;
};

}  // namespace vantor
