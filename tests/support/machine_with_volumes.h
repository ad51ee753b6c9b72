#pragma once

#include <memory>
#include <utility>

#include "platform/derived_machine.h"
#include "platform/simulated/simulated_machine.h"

namespace vantor {

/// A simulated machine whose volumes are answered by someone else.
class MachineWithVolumes : public DerivedMachine {
  public:
    MachineWithVolumes(std::shared_ptr<SimulatedMachine> machine,
                       std::shared_ptr<MountedVolumes> volumes)
        : DerivedMachine(std::move(machine)), volumes_(std::move(volumes)) {}

    MountedVolumes& mountedVolumes() override { return *volumes_; }

  private:
    std::shared_ptr<MountedVolumes> volumes_;
};

}  // namespace vantor
