#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/export_platform.h"
#include "platform/machine.h"
#include "platform/main_loop.h"
#include "platform/published.h"
#include "platform/serial_queue.h"
#include "sampling/dashboard_state.h"
#include "sampling/main_task.h"
#include "sampling/pending_update.h"
#include "sampling/snapshot_export_flow.h"
#include "sampling/system_sampler.h"
#include "settings/app_settings.h"

namespace vantor {

/// The one coordinator of sampling: decides when each provider is asked, buffers what comes back,
/// and publishes the state that the views read. Main thread only.
///
/// A fast group (cpu, memory, network, system) is asked on every tick; a slow group (processes,
/// graphics, power, volumes) is staged in after the start and then joins the ticks. Results carry
/// the generation that they were asked under and are dropped once it is over. Held by shared_ptr:
/// tasks and completions refer to it weakly and do nothing when it is gone.
class SystemMonitor : public std::enable_shared_from_this<SystemMonitor> {
  public:
    /// Without a platform to export with, exportSnapshot does nothing.
    static std::shared_ptr<SystemMonitor> make(std::shared_ptr<AppSettings> settings,
                                               std::shared_ptr<Machine> machine,
                                               std::shared_ptr<MainLoop> mainLoop,
                                               std::shared_ptr<SerialQueueFactory> queues,
                                               ExportPlatform exportPlatform = {});
    SystemMonitor(const SystemMonitor&) = delete;
    SystemMonitor& operator=(const SystemMonitor&) = delete;
    ~SystemMonitor();

    const DashboardState& dashboardState() const { return dashboardState_.value(); }
    bool isPaused() const { return isPaused_.value(); }
    Published<DashboardState>& dashboardStateStream() { return dashboardState_; }
    Published<bool>& isPausedStream() { return isPaused_; }

    /// Starts the refresh loop, unless one runs or the user has paused.
    void start();

    /// Pauses (results in flight are dropped and the baselines forgotten), or starts again.
    void togglePause();

    /// Asks all providers at once, also during a pause; starts the loop instead when there should
    /// be one and is none.
    void forceRefresh();

    /// While the user resizes the window, ticks ask for nothing and nothing is committed.
    void setDashboardLiveResizeActive(bool active);

    /// Saves the published snapshot into a file of the user's choice, see SnapshotExportFlow.
    void exportSnapshot();

    bool isExportFlowActive() const { return exportFlow_->isActive(); }
    bool isExportWriting() const { return exportFlow_->isWriting(); }
    bool waitForExport(std::chrono::milliseconds limit) const {
        return exportFlow_->waitUntilWritten(limit);
    }

    std::uint64_t generation() const { return generation_; }
    bool isMonitoring() const { return monitoringTask_ != nullptr; }
    bool slowProvidersEnabled() const { return slowProvidersEnabled_; }
    bool isDashboardLiveResizeActive() const { return isDashboardLiveResizeActive_; }

    /// The seconds between two readings for that setting, within its bounds.
    static double fastInterval(double refreshInterval);
    static double systemInfoInterval(double refreshInterval);
    static std::chrono::nanoseconds loopSleep(double refreshInterval);

    /// What the providers' completions deliver to. A result of another generation, an absent one,
    /// an empty process list and a power failure change nothing.
    template <class Provider, class Result>
    void receive(Result result, std::uint64_t generation) {
        if (generation != generation_) return;
        if (pendingUpdate_.put<Provider>(std::move(result))) scheduleCommit();
    }

    // The same under the names of the providers.
    void receiveCPU(std::optional<CPUStats> result, std::uint64_t generation) {
        receive<CPUProvider>(std::move(result), generation);
    }
    void receiveMemory(std::optional<MemoryStats> result, std::uint64_t generation) {
        receive<MemoryProvider>(std::move(result), generation);
    }
    void receiveNetwork(std::optional<NetworkStats> result, std::uint64_t generation) {
        receive<NetworkProvider>(std::move(result), generation);
    }
    void receiveSystemInfo(SystemInfoStats result, std::uint64_t generation) {
        receive<SystemInfoProvider>(std::move(result), generation);
    }
    void receiveProcesses(ProcessSample result, std::uint64_t generation) {
        receive<ProcessProvider>(std::move(result), generation);
    }
    void receiveGPUs(std::optional<std::vector<GPUStats>> result, std::uint64_t generation) {
        receive<GPUProvider>(std::move(result), generation);
    }
    void receiveVolumes(std::optional<std::vector<VolumeStats>> result, std::uint64_t generation) {
        receive<VolumeProvider>(std::move(result), generation);
    }
    void receivePower(PowerReadResult result, std::uint64_t generation) {
        receive<PowerProvider>(std::move(result), generation);
    }

  private:
    SystemMonitor(std::shared_ptr<AppSettings> settings, std::shared_ptr<Machine> machine,
                  std::shared_ptr<MainLoop> mainLoop, std::shared_ptr<SerialQueueFactory> queues,
                  ExportPlatform exportPlatform);

    void observeSettings();
    void restartForNewInterval();
    SystemSampler& sampler();

    void firstTick(const std::shared_ptr<MainTask>& task, std::uint64_t generation);
    void nextTick(const std::shared_ptr<MainTask>& task, std::uint64_t generation);
    void sleepUntilNextTick(const std::shared_ptr<MainTask>& task, std::uint64_t generation);
    bool mayTick(std::uint64_t generation) const;
    void endLoop(std::uint64_t generation);

    void scheduleSlowProviderStartup(std::uint64_t generation);
    void sleepUntilStage(const std::shared_ptr<MainTask>& task, int stage,
                         std::uint64_t generation);
    void runStage(const std::shared_ptr<MainTask>& task, int stage, std::uint64_t generation);
    void stopCoordinator(bool invalidatePendingResults);

    template <class Provider>
    void request(bool force, std::uint64_t generation);
    void requestStage(int stage, bool force, std::uint64_t generation);
    void requestFastProviders(bool force, std::uint64_t generation);
    void requestSlowProviders(bool force, std::uint64_t generation);

    void scheduleCommit();
    void commitPendingUpdate();
    DashboardState copyOfState();
    void trimHistoriesTo(std::int64_t historyLength);

    Published<DashboardState> dashboardState_;
    Published<bool> isPaused_;
    std::shared_ptr<AppSettings> settings_;
    std::shared_ptr<Machine> machine_;
    std::shared_ptr<MainLoop> mainLoop_;
    std::shared_ptr<SerialQueueFactory> queues_;
    const std::shared_ptr<SnapshotExportFlow> exportFlow_;
    std::shared_ptr<SystemSampler> sampler_;  // made on first use
    std::shared_ptr<MainTask> monitoringTask_;
    std::shared_ptr<MainTask> startupTask_;
    std::shared_ptr<MainTask> pendingCommitTask_;
    Subscription refreshIntervalObservation_;
    Subscription historyLengthObservation_;
    PendingUpdate pendingUpdate_;
    DashboardState spareState_;  // the state before the last one: its storage takes the next copy
    std::uint64_t generation_ = 0;
    bool slowProvidersEnabled_ = false;
    bool isDashboardLiveResizeActive_ = false;
};

}  // namespace vantor
