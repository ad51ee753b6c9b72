#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/memory_reader.h"

#include "sequences/chance.h"
#include "sequences/sequence.h"

namespace vantor {

/// Page counts and pages of any size; calls that fail. Nothing of a reading may depend on the one
/// before it but the installed memory, which is that of the first.
class MemorySequence : public Sequence {
  public:
    explicit MemorySequence(std::uint64_t seed);

    std::optional<std::string> step() override;

  private:
    void changePages();
    std::optional<MemoryStats> expected() const;

    Chance chance_;
    std::shared_ptr<SimulatedMachine> machine_ = std::make_shared<SimulatedMachine>();
    SimulatedHostMemory& host_ = machine_->hostMemory();
    MemoryReader reader_{machine_};
    std::uint64_t installed_ = 0;
    bool isInstalledKnown_ = false;
};

}  // namespace vantor
