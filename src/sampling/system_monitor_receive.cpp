#include <utility>

#include "sampling/commit.h"
#include "sampling/histories.h"
#include "sampling/system_monitor.h"

/// The way in: results are collected in the pending update, and one commit shortly after the first
/// of them publishes them all together, so that a tick redraws the dashboard once instead of eight
/// times.
namespace vantor {

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
    auto& system = update.of<SystemInfoProvider>();
    if (system == dashboardState().snapshot.system) system.reset();
    if (update.isEmpty()) return;
    DashboardState next = copyOfState();
    if (applyUpdate(std::move(update), next, historyLimit(settings_->historyLength()),
                    machine_->wallClock().now(), machine_->processInfo().systemUptime())) {
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
