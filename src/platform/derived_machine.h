#pragma once

#include <memory>
#include <utility>

#include "platform/machine.h"

namespace vantor {

/// A machine that asks another one whatever a class derived from this does not answer itself.
class DerivedMachine : public Machine {
  public:
    explicit DerivedMachine(std::shared_ptr<Machine> origin) : origin_(std::move(origin)) {}

    Accelerators& accelerators() override { return origin_->accelerators(); }
    GraphicsDevices& graphicsDevices() override { return origin_->graphicsDevices(); }
    HostMemory& hostMemory() override { return origin_->hostMemory(); }
    HostProcessors& hostProcessors() override { return origin_->hostProcessors(); }
    KernelValues& kernelValues() override { return origin_->kernelValues(); }
    LoadAverages& loadAverages() override { return origin_->loadAverages(); }
    MountedVolumes& mountedVolumes() override { return origin_->mountedVolumes(); }
    NetworkInterfaces& networkInterfaces() override { return origin_->networkInterfaces(); }
    PowerSources& powerSources() override { return origin_->powerSources(); }
    PrimaryInterface& primaryInterface() override { return origin_->primaryInterface(); }
    ProcessInfo& processInfo() override { return origin_->processInfo(); }
    ProcessTable& processTable() override { return origin_->processTable(); }
    Temperatures& temperatures() override { return origin_->temperatures(); }
    WallClock& wallClock() override { return origin_->wallClock(); }
    const PlatformWords& words() const override { return origin_->words(); }

  protected:
    const std::shared_ptr<Machine>& origin() const { return origin_; }

  private:
    std::shared_ptr<Machine> origin_;
};

}  // namespace vantor
