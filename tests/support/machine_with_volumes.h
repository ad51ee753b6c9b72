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
        : machine_(std::move(machine)), volumes_(std::move(volumes)) {}

    DynamicStore& dynamicStore() override { return machine_->dynamicStore(); }
    HostMemory& hostMemory() override { return machine_->hostMemory(); }
    HostProcessors& hostProcessors() override { return machine_->hostProcessors(); }
    KernelValues& kernelValues() override { return machine_->kernelValues(); }
    LoadAverages& loadAverages() override { return machine_->loadAverages(); }
    MountedVolumes& mountedVolumes() override { return *volumes_; }
    NetworkInterfaces& networkInterfaces() override { return machine_->networkInterfaces(); }
    PowerSources& powerSources() override { return machine_->powerSources(); }
    ProcessInfo& processInfo() override { return machine_->processInfo(); }
    ProcessTable& processTable() override { return machine_->processTable(); }
    WallClock& wallClock() override { return machine_->wallClock(); }
    const PlatformWords& words() const override { return machine_->words(); }

  private:
    std::shared_ptr<SimulatedMachine> machine_;
    std::shared_ptr<MountedVolumes> volumes_;
};

}  // namespace vantor
