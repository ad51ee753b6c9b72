#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "probes/power_reader.h"

#include "sequences/chance.h"
#include "sequences/power_oracle.h"
#include "sequences/sequence.h"

namespace vantor {

/// Batteries and other sources that come and go and are described well, badly or not at all.
class PowerSequence : public Sequence {
  public:
    explicit PowerSequence(std::uint64_t seed) : chance_(seed) {}

    std::optional<std::string> step() override;

  private:
    PowerOracle::Source newSource();
    void changeSource(PowerOracle::Source& source);
    std::optional<std::int64_t> someNumber();
    void tellMachine();

    Chance chance_;
    std::shared_ptr<SimulatedMachine> machine_ = std::make_shared<SimulatedMachine>();
    SimulatedPowerSources& power_ = machine_->powerSources();
    PowerReader reader_{machine_};
    std::vector<PowerOracle::Source> sources_;
};

}  // namespace vantor
