#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "model/gpu_stats.h"
#include "platform/machine.h"
#include "platform/serial_queue.h"
#include "platform/unique_function.h"
#include "probes/cpu_reader.h"
#include "probes/gpu_reader.h"
#include "probes/hardware_temperature_reader.h"
#include "probes/memory_reader.h"
#include "probes/network_reader.h"
#include "probes/power_reader.h"
#include "probes/process_reader.h"
#include "probes/storage_reader.h"
#include "probes/system_info_reader.h"
#include "sampling/provider_gate.h"

namespace vantor {

/// The one object that touches the probes: eight providers, each with a serial queue and a gate.
///
/// Requests come from the main thread. An admitted one runs its probe on the provider's queue and
/// hands the result to `completion` there; a refused one never answers. Work in flight keeps the
/// gate and the machine, not the sampler: destroying the sampler invalidates the gates, never
/// waits, and ends the waiting runs without an answer.
class SystemSampler : public std::enable_shared_from_this<SystemSampler> {
  public:
    template <class Result>
    using Completion = UniqueFunction<void(Result), 64>;

    /// The labels of the queues, in the order in which they are made.
    static const std::vector<std::string_view>& queueLabels();

    /// Held by shared_ptr alone, because work in flight refers to it weakly.
    static std::shared_ptr<SystemSampler> make(std::shared_ptr<Machine> machine,
                                               SerialQueueFactory& queues);
    SystemSampler(const SystemSampler&) = delete;
    SystemSampler& operator=(const SystemSampler&) = delete;
    ~SystemSampler();

    /// A record given by pointer is null when there is none this time; one given by pointer or
    /// reference is the reader's own and holds for the length of the call.
    void requestCPU(double minimumInterval, bool force, Completion<const CPUStats*> completion);
    void requestMemory(double minimumInterval, bool force,
                       Completion<std::optional<MemoryStats>> completion);
    void requestNetwork(bool includePointToPointInterfaces, double minimumInterval, bool force,
                        Completion<const NetworkStats*> completion);
    void requestSystemInfo(double minimumInterval, bool force,
                           Completion<const SystemInfoStats&> completion);
    void requestProcesses(double minimumInterval, bool force, Completion<ProcessSample> completion);
    void requestGPUs(double minimumInterval, bool force,
                     Completion<std::optional<std::vector<GPUStats>>> completion);
    void requestVolumes(double minimumInterval, bool force,
                        Completion<std::optional<std::vector<VolumeStats>>> completion);
    void requestPower(double minimumInterval, bool force, Completion<PowerReadResult> completion);

    /// Nothing is admitted from now on, and waiting runs end without an answer. Also what
    /// destruction does; but a run in progress keeps the sampler alive until it is over.
    void invalidate();

    /// Makes the probes that measure over intervals start over, after any run that is queued now
    /// and before any that is queued later.
    void resetDeltaBaselines();

    /// The gates in the order of queueLabels, for whoever must see them balanced in the end.
    std::vector<std::shared_ptr<const ProviderGate>> gates() const;

  private:
    struct Provider {
        std::unique_ptr<SerialQueue> queue;
        std::shared_ptr<ProviderGate> gate;
    };
    enum ProviderIndex { cpu, memory, network, system, processes, gpu, storage, power };

    SystemSampler(std::shared_ptr<Machine> machine, SerialQueueFactory& queues);

    template <class Operation, class Answer>
    void schedule(ProviderIndex provider, double minimumInterval, bool force, Operation operation,
                  Answer completion);
    template <class Reset>
    void submitReset(ProviderIndex provider, Reset reset);

    std::shared_ptr<Machine> machine_;
    std::vector<Provider> providers_;
    std::shared_ptr<HardwareTemperatureReader> temperatures_;  // of all providers' readers
    // Each is touched on its own provider's queue only.
    CPUReader cpuReader_;
    MemoryReader memoryReader_;
    NetworkReader networkReader_;
    SystemInfoReader systemInfoReader_;
    ProcessReader processReader_;
    GPUReader gpuReader_;
    StorageReader storageReader_;
    PowerReader powerReader_;
};

}  // namespace vantor
