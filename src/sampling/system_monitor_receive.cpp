#include <utility>

#include "sampling/commit.h"
#include "sampling/system_monitor.h"

/// The road in: results gather in the pending update, and one commit shortly after the first of
/// them publishes them all together, so that a tick redraws the dashboard once instead of eight
/// times.
namespace vantor {

namespace {

constexpr std::chrono::nanoseconds commitDelay{30'000'000};

}  // namespace

template <class Section, class Result>
void SystemMonitor::accept(Section& section, Result&& result) {
    section = std::forward<Result>(result);
    scheduleCommit();
}

void SystemMonitor::receiveCPU(std::optional<CPUStats> result, std::uint64_t generation) {
    if (generation == generation_ && result) accept(pendingUpdate_.cpu, std::move(result));
}

void SystemMonitor::receiveMemory(std::optional<MemoryStats> result, std::uint64_t generation) {
    if (generation == generation_ && result) accept(pendingUpdate_.memory, result);
}

void SystemMonitor::receiveNetwork(std::optional<NetworkStats> result, std::uint64_t generation) {
    if (generation == generation_ && result) accept(pendingUpdate_.network, std::move(result));
}

void SystemMonitor::receiveSystemInfo(SystemInfoStats result, std::uint64_t generation) {
    if (generation == generation_) accept(pendingUpdate_.system, std::move(result));
}

void SystemMonitor::receiveProcesses(ProcessSample result, std::uint64_t generation) {
    // An empty list is a failed listing: this very process exists.
    if (generation == generation_ && !result.all.empty()) {
        accept(pendingUpdate_.processSample, std::move(result));
    }
}

void SystemMonitor::receiveGPUs(std::optional<std::vector<GPUStats>> result,
                                std::uint64_t generation) {
    if (generation == generation_ && result) accept(pendingUpdate_.gpus, std::move(result));
}

void SystemMonitor::receiveVolumes(std::optional<std::vector<VolumeStats>> result,
                                   std::uint64_t generation) {
    if (generation == generation_ && result) accept(pendingUpdate_.volumes, std::move(result));
}

void SystemMonitor::receivePower(const PowerReadResult& result, std::uint64_t generation) {
    if (generation != generation_ || !result.isUpdate()) return;
    pendingUpdate_.hasPowerUpdate = true;
    accept(pendingUpdate_.power, result.stats());
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
