#include <utility>

#include "sampling/commit.h"
#include "sampling/system_monitor.h"

/// The way in: results are collected in the pending update, and one commit shortly after the first
/// of them publishes them all together, so that a tick redraws the dashboard once instead of eight
/// times.
namespace vantor {

template <class Record>
void SystemMonitor::receive(std::optional<Record> PendingUpdate::*section,
                            std::optional<Record>&& result, std::uint64_t generation) {
    if (generation != generation_ || !result) return;
    pendingUpdate_.*section = std::move(result);
    scheduleCommit();
}

void SystemMonitor::receiveCPU(std::optional<CPUStats> result, std::uint64_t generation) {
    receive(&PendingUpdate::cpu, std::move(result), generation);
}

void SystemMonitor::receiveMemory(std::optional<MemoryStats> result, std::uint64_t generation) {
    receive(&PendingUpdate::memory, std::move(result), generation);
}

void SystemMonitor::receiveNetwork(std::optional<NetworkStats> result, std::uint64_t generation) {
    receive(&PendingUpdate::network, std::move(result), generation);
}

void SystemMonitor::receiveSystemInfo(SystemInfoStats result, std::uint64_t generation) {
    receive(&PendingUpdate::system, std::optional(std::move(result)), generation);
}

void SystemMonitor::receiveProcesses(ProcessSample result, std::uint64_t generation) {
    // An empty list is a failed listing: this very process exists.
    if (result.all.empty()) return;
    receive(&PendingUpdate::processSample, std::optional(std::move(result)), generation);
}

void SystemMonitor::receiveGPUs(std::optional<std::vector<GPUStats>> result,
                                std::uint64_t generation) {
    receive(&PendingUpdate::gpus, std::move(result), generation);
}

void SystemMonitor::receiveVolumes(std::optional<std::vector<VolumeStats>> result,
                                   std::uint64_t generation) {
    receive(&PendingUpdate::volumes, std::move(result), generation);
}

void SystemMonitor::receivePower(const PowerReadResult& result, std::uint64_t generation) {
    if (generation != generation_ || !result.isUpdate()) return;
    pendingUpdate_.power = result.stats();
    pendingUpdate_.hasPowerUpdate = true;
    scheduleCommit();
}

void SystemMonitor::scheduleCommit() {
    if (isDashboardLiveResizeActive_ || pendingCommitTask_) return;
    pendingCommitTask_ = std::make_shared<MainTask>(mainLoop_);
    pendingCommitTask_->sleep(commitDelay, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->commitPendingUpdate();
    });
}

void SystemMonitor::commitPendingUpdate() {
    pendingCommitTask_ = nullptr;
    PendingUpdate update = std::exchange(pendingUpdate_, PendingUpdate{});
    // The one section that mostly stays as it is, and is then no reason to copy the state.
    if (update.system == dashboardState().snapshot.system) update.system.reset();
    if (update.isEmpty()) return;
    DashboardState next = copyOfState();
    if (applyUpdate(std::move(update), next, historyLimit(settings_->historyLength()),
                    machine_->wallClock().now())) {
        dashboardState_.publish(next);
    }
    spareState_ = std::move(next);
}

void SystemMonitor::trimHistoriesTo(std::int64_t historyLength) {
    DashboardState next = copyOfState();
    if (trimHistories(next.histories, historyLimit(historyLength))) {
        dashboardState_.publish(next);
    }
    spareState_ = std::move(next);
}

/// A copy of the published state in the storage of the one before it.
DashboardState SystemMonitor::copyOfState() {
    DashboardState copy = std::move(spareState_);
    copy = dashboardState_.value();
    return copy;
}

}  // namespace vantor
