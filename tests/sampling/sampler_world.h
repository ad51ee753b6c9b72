#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/fake_serial_queue.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/any_provider.h"

namespace vantor {

/// A sampler whose queues are run by hand.
struct SamplerWorld {
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    FakeSerialQueueFactory queues;
    std::shared_ptr<SystemSampler> sampler = SystemSampler::make(machine, queues);
    std::vector<std::shared_ptr<const ProviderGate>> gates = sampler->gates();
    int answers = 0;
    std::vector<std::optional<double>> usages;  ///< of the cpu answers

    SamplerWorld() { machine->hostProcessors().growth = {30, 10, 60, 0}; }

    static std::string_view label(std::size_t provider) {
        return SystemSampler::queueLabels()[provider];
    }
    std::size_t waiting(std::size_t provider) const { return queues.waiting(label(provider)); }
    std::size_t waitingAnywhere() const {
        std::size_t all = 0;
        for (const std::string_view each : SystemSampler::queueLabels())
            all += queues.waiting(each);
        return all;
    }

    void request(std::size_t provider, double minimumInterval, bool force) {
        requestProvider(*sampler, provider, minimumInterval, force, [this] { ++answers; });
    }
    void requestUsage(bool force = true) {
        sampler->requestCPU(0.5, force, [this](const CPUStats* stats) {
            usages.push_back(stats ? std::optional(stats->totalUsage) : std::nullopt);
        });
    }
};

}  // namespace vantor
