#include <utility>

#include "sampling/system_monitor.h"

/// The road out: which provider is asked with which interval, and how its answer finds back to the
/// main thread.
namespace vantor {

namespace {

constexpr double volumesInterval = 15.0;
constexpr double powerInterval = 10.0;

}  // namespace

/// A completion that takes a result from the provider's queue to `receive` on the main thread.
template <class Result, class Receive>
auto SystemMonitor::deliverTo(Receive receive, std::uint64_t generation) {
    return [weak = weak_from_this(), loop = mainLoop_, receive, generation](Result result) {
        loop->post([weak, receive, generation, result = std::move(result)]() mutable {
            if (const auto self = weak.lock()) {
                (self.get()->*receive)(std::move(result), generation);
            }
        });
    };
}

void SystemMonitor::requestFastProviders(bool force, std::uint64_t generation) {
    const double interval = fastInterval(settings_->refreshInterval());
    // Records that are the reader's own are copied before they leave the provider's queue.
    sampler().requestCPU(interval, force,
                         [deliver = deliverTo<std::optional<CPUStats>>(
                              &SystemMonitor::receiveCPU, generation)](const CPUStats* stats) {
                             deliver(stats ? std::optional<CPUStats>(*stats) : std::nullopt);
                         });
    sampler().requestMemory(
        interval, force,
        deliverTo<std::optional<MemoryStats>>(&SystemMonitor::receiveMemory, generation));
    sampler().requestNetwork(
        settings_->includePointToPointInterfaces(), interval, force,
        [deliver = deliverTo<std::optional<NetworkStats>>(&SystemMonitor::receiveNetwork,
                                                          generation)](const NetworkStats* stats) {
            deliver(stats ? std::optional<NetworkStats>(*stats) : std::nullopt);
        });
    sampler().requestSystemInfo(
        systemInfoInterval(settings_->refreshInterval()), force,
        deliverTo<SystemInfoStats>(&SystemMonitor::receiveSystemInfo, generation));
}

void SystemMonitor::requestSlowProviders(bool force, std::uint64_t generation) {
    requestProcesses(force, generation);
    requestGPUs(force, generation);
    requestVolumes(force, generation);
    requestPower(force, generation);
}

void SystemMonitor::requestProcesses(bool force, std::uint64_t generation) {
    sampler().requestProcesses(
        fastInterval(settings_->refreshInterval()), force,
        deliverTo<ProcessSample>(&SystemMonitor::receiveProcesses, generation));
}

void SystemMonitor::requestGPUs(bool force, std::uint64_t generation) {
    sampler().requestGPUs(
        fastInterval(settings_->refreshInterval()), force,
        deliverTo<std::optional<std::vector<GPUStats>>>(&SystemMonitor::receiveGPUs, generation));
}

void SystemMonitor::requestVolumes(bool force, std::uint64_t generation) {
    sampler().requestVolumes(volumesInterval, force,
                             deliverTo<std::optional<std::vector<VolumeStats>>>(
                                 &SystemMonitor::receiveVolumes, generation));
}

void SystemMonitor::requestPower(bool force, std::uint64_t generation) {
    sampler().requestPower(powerInterval, force,
                           deliverTo<PowerReadResult>(&SystemMonitor::receivePower, generation));
}

}  // namespace vantor
