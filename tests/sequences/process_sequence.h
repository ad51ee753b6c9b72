#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/process_reader.h"

#include "sequences/chance.h"
#include "sequences/process_oracle.h"
#include "sequences/sequence.h"

namespace vantor {

/// Processes that are born, die, use identifiers again, run other programs and cannot be read for
/// a while; crowds that come and go; clocks that step; lists that cannot be had or are cut.
class ProcessSequence : public Sequence {
  public:
    explicit ProcessSequence(std::uint64_t seed);

    std::optional<std::string> step() override;

  private:
    using Process = SimulatedProcessTable::Process;

    static long double chooseTimebase(Chance& chance, SimulatedMachine& machine);
    static std::size_t chooseMaximum(Chance& chance, SimulatedMachine& machine);
    std::int32_t freePID();
    void bear();
    void comeAndGo();
    void work();
    void passTime();
    bool failAtTimes();
    void listMore();
    ProcessOracle::Reading truth(bool isListed) const;

    Chance chance_;
    std::shared_ptr<SimulatedMachine> machine_ = std::make_shared<SimulatedMachine>();
    SimulatedProcessTable& table_ = machine_->processTable();
    long double unitsPerSecond_ = chooseTimebase(chance_, *machine_);
    std::size_t maximum_ = chooseMaximum(chance_, *machine_);
    ProcessReader reader_{machine_};
    ProcessOracle oracle_{unitsPerSecond_};
    std::int32_t highestPID_ = 0;
    std::size_t population_ = 0;
    std::uint64_t births_ = 0;
};

}  // namespace vantor
