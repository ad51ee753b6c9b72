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
    TickingMachine() { calls_.hostProcessors = processors_; }

    const MachineCalls& calls() const override { return calls_; }

  private:
    std::shared_ptr<Machine> origin_ = makeNativeMachine();
    TickingProcessors processors_{origin_->hostProcessors()};
    MachineCalls calls_{origin_->calls()};
};

}  // namespace

std::shared_ptr<Machine> makeTickingMachine() {
    return std::make_shared<TickingMachine>();
}

}  // namespace vantor::bench
