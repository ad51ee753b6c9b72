#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/cpu_reader.h"
#include "support/scripted_sensors.h"

#include "sequences/chance.h"
#include "sequences/processor_oracle.h"
#include "sequences/sequence.h"

namespace vantor {

/// Processors that work, idle, start to count again and come and go; calls that fail.
class ProcessorSequence : public Sequence {
  public:
    explicit ProcessorSequence(std::uint64_t seed);

    std::optional<std::string> step() override;

  private:
    void work();
    void changeCounters();
    void changeProcessors();
    void failAtTimes();
    void changeLoad();
    ProcessorOracle::Reading truth() const;

    Chance chance_;
    std::shared_ptr<SimulatedMachine> machine_ = std::make_shared<SimulatedMachine>();
    SimulatedHostProcessors& host_ = machine_->hostProcessors();
    std::optional<double> temperature_;
    ScriptedSensors sensors_;
    CPUReader reader_{machine_};
    ProcessorOracle oracle_;
    bool coresFail_ = false;
};

}  // namespace vantor
