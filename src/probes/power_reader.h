#pragma once

#include <memory>
#include <optional>

#include "model/power_read_result.h"
#include "platform/machine.h"

namespace vantor {

/// Reads the machine's power sources afresh at each call and keeps nothing. One thread at a time.
class PowerReader {
  public:
    explicit PowerReader(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    PowerReadResult read();

  private:
    static std::optional<PowerStats> stats(const PropertyDictionary& description);

    std::shared_ptr<Machine> machine_;
};

}  // namespace vantor
