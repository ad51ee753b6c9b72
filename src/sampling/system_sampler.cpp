#include "sampling/system_sampler.h"

#include <utility>

namespace vantor {

const std::vector<std::string_view>& SystemSampler::queueLabels() {
    static const std::vector<std::string_view> labels{
        "com.kestrone.Vantor.provider.cpu",       "com.kestrone.Vantor.provider.memory",
        "com.kestrone.Vantor.provider.network",   "com.kestrone.Vantor.provider.system",
        "com.kestrone.Vantor.provider.processes", "com.kestrone.Vantor.provider.gpu",
        "com.kestrone.Vantor.provider.storage",   "com.kestrone.Vantor.provider.power"};
    return labels;
}

std::shared_ptr<SystemSampler> SystemSampler::make(std::shared_ptr<Machine> machine,
                                                   SerialQueueFactory& queues) {
    struct Constructible : SystemSampler {
        Constructible(std::shared_ptr<Machine> m, SerialQueueFactory& q)
            : SystemSampler(std::move(m), q) {}
    };
    return std::make_shared<Constructible>(std::move(machine), queues);
}

SystemSampler::SystemSampler(std::shared_ptr<Machine> machine, SerialQueueFactory& queues)
    : machine_(std::move(machine)),
      temperatures_(std::make_shared<HardwareTemperatureReader>(machine_)),
      cpuReader_(machine_, [sensors = temperatures_] { return sensors->cpuTemperature(); }),
      memoryReader_(machine_),
      networkReader_(machine_),
      systemInfoReader_(machine_),
      processReader_(machine_),
      gpuReader_(machine_, GPUTemperatureSources::of(temperatures_)),
      storageReader_(machine_),
      powerReader_(machine_) {
    for (const std::string_view label : queueLabels()) {
        providers_.push_back({queues.makeQueue(label), nullptr});
    }
    for (Provider& provider : providers_) {
        provider.gate = std::make_shared<ProviderGate>(machine_);
    }
}

SystemSampler::~SystemSampler() {
    invalidate();
}

void SystemSampler::invalidate() {
    for (const Provider& provider : providers_)
        provider.gate->invalidate();
}

template <class Operation, class Answer>
void SystemSampler::schedule(ProviderIndex provider, double minimumInterval, bool force,
                             Operation operation, Answer completion) {
    const Provider& asked = providers_[provider];
    if (!asked.gate->begin(minimumInterval, force)) return;
    // When the sampler goes while this runs, the run is what keeps it alive; it then ends here, on
    // the provider's thread, and its queues with it: none of them waits.
    asked.queue->submit([weak = weak_from_this(), gate = asked.gate, operation,
                         completion = std::move(completion)]() mutable {
        const auto sampler = weak.lock();
        if (!sampler) {
            gate->finish();
            return;
        }
        if (!gate->startRun()) return;
        completion(operation(*sampler));
        gate->finish();
    });
}

void SystemSampler::requestCPU(double minimumInterval, bool force,
                               Completion<const CPUStats*> completion) {
    schedule(
        cpu, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.cpuReader_.read(); }, std::move(completion));
}

void SystemSampler::requestMemory(double minimumInterval, bool force,
                                  Completion<std::optional<MemoryStats>> completion) {
    schedule(
        memory, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.memoryReader_.read(); }, std::move(completion));
}

void SystemSampler::requestNetwork(bool includePointToPointInterfaces, double minimumInterval,
                                   bool force, Completion<const NetworkStats*> completion) {
    schedule(
        network, minimumInterval, force,
        [includePointToPointInterfaces](SystemSampler& sampler) {
            // Not the instant of the gate: rates are measured from reading to reading.
            const double uptime = sampler.machine_->processInfo().systemUptime();
            return sampler.networkReader_.read(includePointToPointInterfaces, uptime);
        },
        std::move(completion));
}

void SystemSampler::requestSystemInfo(double minimumInterval, bool force,
                                      Completion<const SystemInfoStats&> completion) {
    schedule(
        system, minimumInterval, force,
        [](SystemSampler& sampler) -> const SystemInfoStats& {
            return sampler.systemInfoReader_.read();
        },
        std::move(completion));
}

void SystemSampler::requestProcesses(double minimumInterval, bool force,
                                     Completion<ProcessSample> completion) {
    schedule(
        processes, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.processReader_.read(); },
        std::move(completion));
}

void SystemSampler::requestGPUs(double minimumInterval, bool force,
                                Completion<std::optional<std::vector<GPUStats>>> completion) {
    schedule(
        gpu, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.gpuReader_.read(); }, std::move(completion));
}

void SystemSampler::requestVolumes(double minimumInterval, bool force,
                                   Completion<std::optional<std::vector<VolumeStats>>> completion) {
    schedule(
        storage, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.storageReader_.read(); },
        std::move(completion));
}

void SystemSampler::requestPower(double minimumInterval, bool force,
                                 Completion<PowerReadResult> completion) {
    schedule(
        power, minimumInterval, force,
        [](SystemSampler& sampler) { return sampler.powerReader_.read(); }, std::move(completion));
}

template <class Reset>
void SystemSampler::submitReset(ProviderIndex provider, Reset reset) {
    providers_[provider].queue->submit([weak = weak_from_this(), reset] {
        if (const auto sampler = weak.lock()) reset(*sampler);
    });
}

void SystemSampler::resetDeltaBaselines() {
    submitReset(cpu, [](SystemSampler& sampler) { sampler.cpuReader_.resetDeltas(); });
    submitReset(network, [](SystemSampler& sampler) { sampler.networkReader_.resetDeltas(); });
    submitReset(processes, [](SystemSampler& sampler) { sampler.processReader_.resetDeltas(); });
}

std::vector<std::shared_ptr<const ProviderGate>> SystemSampler::gates() const {
    std::vector<std::shared_ptr<const ProviderGate>> gates;
    for (const Provider& provider : providers_)
        gates.push_back(provider.gate);
    return gates;
}

}  // namespace vantor
