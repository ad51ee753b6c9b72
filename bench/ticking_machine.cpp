#include "ticking_machine.h"

#include "platform/native_machine.h"

namespace vantor::bench {

namespace {

class TickingProcessors : public HostProcessors {
  public:
    explicit TickingProcessors(HostProcessors& host) : host_(host) {}

    Port acquirePort() override { return host_.acquirePort(); }
    void releasePort(Port port) override { host_.releasePort(port); }
    std::optional<std::size_t> totalTicks(Port port, std::span<std::uint32_t> counters) override {
        const auto count = host_.totalTicks(port, counters);
        if (count && *count > 0) counters.front() += ++spent_;
        return count;
    }
    std::optional<ProcessorArray> processorTicks(Port port) override {
        return host_.processorTicks(port);
    }
    void releaseArray(const std::uint32_t* words, std::size_t byteCount) override {
        host_.releaseArray(words, byteCount);
    }

  private:
    HostProcessors& host_;
    std::uint32_t spent_ = 0;
};

class TickingMachine : public Machine {
  public:
    DynamicStore& dynamicStore() override { return native_->dynamicStore(); }
    HostMemory& hostMemory() override { return native_->hostMemory(); }
    HostProcessors& hostProcessors() override { return processors_; }
    KernelValues& kernelValues() override { return native_->kernelValues(); }
    LoadAverages& loadAverages() override { return native_->loadAverages(); }
    MountedVolumes& mountedVolumes() override { return native_->mountedVolumes(); }
    NetworkInterfaces& networkInterfaces() override { return native_->networkInterfaces(); }
    PowerSources& powerSources() override { return native_->powerSources(); }
    ProcessInfo& processInfo() override { return native_->processInfo(); }
    ProcessTable& processTable() override { return native_->processTable(); }
    WallClock& wallClock() override { return native_->wallClock(); }
    const PlatformWords& words() const override { return native_->words(); }

  private:
    std::shared_ptr<Machine> native_ = makeNativeMachine();
    TickingProcessors processors_{native_->hostProcessors()};
};

}  // namespace

std::shared_ptr<Machine> makeTickingMachine() {
    return std::make_shared<TickingMachine>();
}

}  // namespace vantor::bench
