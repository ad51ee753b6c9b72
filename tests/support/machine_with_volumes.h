#pragma once

#include <memory>
#include <utility>

#include "platform/simulated/simulated_machine.h"

namespace vantor {

/// A simulated machine whose volumes are answered by someone else.
class MachineWithVolumes : public Machine {
  public:
    MachineWithVolumes(std::shared_ptr<SimulatedMachine> machine,
                       std::shared_ptr<MountedVolumes> volumes)
        : machine_(std::move(machine)), volumes_(std::move(volumes)) {
        calls_.mountedVolumes = *volumes_;
    }

    const MachineCalls& calls() const override { return calls_; }

  private:
    std::shared_ptr<SimulatedMachine> machine_;
    std::shared_ptr<MountedVolumes> volumes_;
    MachineCalls calls_{machine_->calls()};
};

}  // namespace vantor
