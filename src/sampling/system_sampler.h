#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/machine.h"
#include "platform/serial_queue.h"
#include "platform/unique_function.h"
#include "sampling/provider_gate.h"
#include "sampling/providers.h"

namespace vantor {

/// The one object that touches the probes: of each provider of the table a reader, a serial queue
/// and a gate.
///
/// Requests come from the main thread. An admitted one runs its probe on the provider's queue and
/// hands the result to `completion` there; a refused one never calls it. Work in flight keeps the
/// gate and the machine, not the sampler: destroying the sampler invalidates the gates, never
/// waits, and ends the waiting runs without an answer.
class SystemSampler : public std::enable_shared_from_this<SystemSampler> {
  public:
    template <class Result>
    using Completion = UniqueFunction<void(Result), 64>;

    /// What a provider's reader returns. A record returned by pointer is null when there is none
    /// this time; one returned by pointer or reference is the reader's own and valid during the
    /// call.
    template <class Provider>
    using Result = decltype(Provider::read(std::declval<typename Provider::Reader&>(),
                                           std::declval<Machine&>(), ReadingOptions{}));

    /// The labels of the queues, in the order in which they are made.
    static const std::vector<std::string_view>& queueLabels();

    /// Held by shared_ptr only, because work in flight refers to it weakly.
    static std::shared_ptr<SystemSampler> make(std::shared_ptr<Machine> machine,
                                               SerialQueueFactory& queues);
    SystemSampler(const SystemSampler&) = delete;
    SystemSampler& operator=(const SystemSampler&) = delete;
    ~SystemSampler();

    /// Asks for a reading, at most one in `minimumInterval` seconds unless it is forced.
    template <class Provider>
    void request(double minimumInterval, bool force, Completion<Result<Provider>> completion,
                 ReadingOptions options = {});

    // The same under the names of the providers.
    void requestCPU(double minimumInterval, bool force,
                    Completion<Result<CPUProvider>> completion) {
        request<CPUProvider>(minimumInterval, force, std::move(completion));
    }
    void requestMemory(double minimumInterval, bool force,
                       Completion<Result<MemoryProvider>> completion) {
        request<MemoryProvider>(minimumInterval, force, std::move(completion));
    }
    void requestNetwork(bool includePointToPointInterfaces, double minimumInterval, bool force,
                        Completion<Result<NetworkProvider>> completion) {
        request<NetworkProvider>(minimumInterval, force, std::move(completion),
                                 {.includePointToPointInterfaces = includePointToPointInterfaces});
    }
    void requestSystemInfo(double minimumInterval, bool force,
                           Completion<Result<SystemInfoProvider>> completion) {
        request<SystemInfoProvider>(minimumInterval, force, std::move(completion));
    }
    void requestProcesses(double minimumInterval, bool force,
                          Completion<Result<ProcessProvider>> completion) {
        request<ProcessProvider>(minimumInterval, force, std::move(completion));
    }
    void requestGPUs(double minimumInterval, bool force,
                     Completion<Result<GPUProvider>> completion) {
        request<GPUProvider>(minimumInterval, force, std::move(completion));
    }
    void requestVolumes(double minimumInterval, bool force,
                        Completion<Result<VolumeProvider>> completion) {
        request<VolumeProvider>(minimumInterval, force, std::move(completion));
    }
    void requestPower(double minimumInterval, bool force,
                      Completion<Result<PowerProvider>> completion) {
        request<PowerProvider>(minimumInterval, force, std::move(completion));
    }

    /// Nothing is admitted from now on, and waiting runs end without an answer. Also what
    /// destruction does; but a run in progress keeps the sampler alive until it is over.
    void invalidate();

    /// Makes the probes that measure over intervals start over, after any run that is queued now
    /// and before any that is queued later.
    void resetDeltaBaselines();

    /// The gates in the order of queueLabels, to check that they are balanced in the end.
    std::vector<std::shared_ptr<const ProviderGate>> gates() const;

  private:
    template <class Provider>
    struct Slot {
        explicit Slot(const std::shared_ptr<Machine>& machine) : reader(machine) {}

        typename Provider::Reader reader;  // touched on the provider's queue only
        std::unique_ptr<SerialQueue> queue;
        std::shared_ptr<ProviderGate> gate;
    };
    template <class... Providers>
    static std::tuple<Slot<Providers>...> makeSlots(std::tuple<Providers...>,
                                                    const std::shared_ptr<Machine>& machine) {
        // Each is made in its place: readers are not moved.
        return std::tuple<Slot<Providers>...>((static_cast<void>(Providers{}), machine)...);
    }
    using Slots =
        decltype(makeSlots(AllProviders{}, std::declval<const std::shared_ptr<Machine>&>()));

    SystemSampler(std::shared_ptr<Machine> machine, SerialQueueFactory& queues);

    template <class Provider>
    Slot<Provider>& slot() {
        return std::get<Slot<Provider>>(slots_);
    }

    std::shared_ptr<Machine> machine_;
    Slots slots_;
};

template <class Provider>
void SystemSampler::request(double minimumInterval, bool force,
                            Completion<Result<Provider>> completion, ReadingOptions options) {
    Slot<Provider>& asked = slot<Provider>();
    if (!asked.gate->begin(minimumInterval, force)) return;
    // When the sampler goes while this runs, the run is what keeps it alive; it then ends here, on
    // the provider's thread, and its queues with it: none of them waits.
    asked.queue->submit([weak = weak_from_this(), gate = asked.gate, options,
                         completion = std::move(completion)]() mutable {
        const auto sampler = weak.lock();
        if (!sampler) {
            gate->finish();
            return;
        }
        if (!gate->startRun()) return;
        completion(Provider::read(sampler->slot<Provider>().reader, *sampler->machine_, options));
        gate->finish();
    });
}

}  // namespace vantor
