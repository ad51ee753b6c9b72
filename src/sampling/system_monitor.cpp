#include "sampling/system_monitor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vantor {

namespace {

// Stages of the slow providers' start: reading everything at once would make the first second of
// the program its most expensive one.
constexpr std::chrono::nanoseconds stageDelay{300'000'000};
constexpr int lastStage = [] {
    int last = 0;
    forEachProvider([&](auto provider) { last = std::max(last, provider.stage); });
    return last;
}();

}  // namespace

std::shared_ptr<SystemMonitor> SystemMonitor::make(std::shared_ptr<AppSettings> settings,
                                                   std::shared_ptr<Machine> machine,
                                                   std::shared_ptr<MainLoop> mainLoop,
                                                   std::shared_ptr<SerialQueueFactory> queues,
                                                   ExportPlatform exportPlatform) {
    struct Constructible : SystemMonitor {
        Constructible(std::shared_ptr<AppSettings> s, std::shared_ptr<Machine> m,
                      std::shared_ptr<MainLoop> l, std::shared_ptr<SerialQueueFactory> q,
                      ExportPlatform e)
            : SystemMonitor(std::move(s), std::move(m), std::move(l), std::move(q), std::move(e)) {}
    };
    std::shared_ptr<SystemMonitor> monitor = std::make_shared<Constructible>(
        std::move(settings), std::move(machine), std::move(mainLoop), std::move(queues),
        std::move(exportPlatform));
    monitor->observeSettings();
    return monitor;
}

SystemMonitor::SystemMonitor(std::shared_ptr<AppSettings> settings,
                             std::shared_ptr<Machine> machine, std::shared_ptr<MainLoop> mainLoop,
                             std::shared_ptr<SerialQueueFactory> queues,
                             ExportPlatform exportPlatform)
    : dashboardState_(DashboardState{}),
      isPaused_(false),
      settings_(std::move(settings)),
      machine_(std::move(machine)),
      mainLoop_(std::move(mainLoop)),
      queues_(std::move(queues)),
      exportFlow_(std::make_shared<SnapshotExportFlow>(std::move(exportPlatform), machine_,
                                                       mainLoop_, queues_)) {}

SystemMonitor::~SystemMonitor() {
    cancelTask(monitoringTask_);
    cancelTask(startupTask_);
    cancelTask(pendingCommitTask_);
    exportFlow_->abandon();
    if (sampler_) sampler_->invalidate();  // a run in progress may keep it alive
}

void SystemMonitor::observeSettings() {
    // Observers are called before the settings change; the work waits for the next turn of the
    // loop, when the new value is in place.
    const auto post = [loop = mainLoop_, weak = weak_from_this()](auto work) {
        loop->post([weak, work] {
            if (const auto self = weak.lock()) work(*self);
        });
    };
    refreshIntervalObservation_ = settings_->refreshIntervalStream().observeChanges(
        [post](const double&) { post([](SystemMonitor& self) { self.restartForNewInterval(); }); });
    historyLengthObservation_ =
        settings_->historyLengthStream().observeChanges([post](const std::int64_t& length) {
            post([length](SystemMonitor& self) { self.trimHistoriesTo(length); });
        });
}

void SystemMonitor::restartForNewInterval() {
    if (isPaused() || !monitoringTask_) return;
    stopCoordinator(true);
    start();
}

double SystemMonitor::fastInterval(double refreshInterval) {
    if (!std::isfinite(refreshInterval)) return AppSettings::fallbackRefreshInterval;
    return std::clamp(refreshInterval, AppSettings::refreshIntervals.front(),
                      AppSettings::refreshIntervals.back());
}

double SystemMonitor::systemInfoInterval(double refreshInterval) {
    return std::max(fastInterval(refreshInterval), SystemInfoProvider::minInterval);
}

std::chrono::nanoseconds SystemMonitor::loopSleep(double refreshInterval) {
    return std::chrono::nanoseconds{
        static_cast<std::chrono::nanoseconds::rep>(fastInterval(refreshInterval) * 1e9)};
}

void SystemMonitor::exportSnapshot() {
    // The flow ends before the monitor does, see the destructor.
    exportFlow_->begin([this]() -> const SystemSnapshot& { return dashboardState().snapshot; });
}

SystemSampler& SystemMonitor::sampler() {
    if (!sampler_) sampler_ = SystemSampler::make(machine_, *queues_);
    return *sampler_;
}

void SystemMonitor::start() {
    if (monitoringTask_ || isPaused()) return;
    ++generation_;
    monitoringTask_ = std::make_shared<MainTask>(mainLoop_);
    monitoringTask_->post(
        [weak = weak_from_this(), task = monitoringTask_, generation = generation_] {
            if (const auto self = weak.lock()) self->firstTick(task, generation);
        });
}

void SystemMonitor::togglePause() {
    if (isPaused()) {
        isPaused_.set(false);
        start();
    } else {
        isPaused_.set(true);
        stopCoordinator(true);
    }
}

void SystemMonitor::forceRefresh() {
    if (!isPaused() && !monitoringTask_) {
        start();
        return;
    }
    requestFastProviders(true, generation_);
    requestSlowProviders(true, generation_);
}

void SystemMonitor::setDashboardLiveResizeActive(bool active) {
    if (active == isDashboardLiveResizeActive_) return;
    isDashboardLiveResizeActive_ = active;
    if (active) {
        cancelTask(pendingCommitTask_);
    } else if (!pendingUpdate_.isEmpty()) {
        commitPendingUpdate();
    }
}

bool SystemMonitor::mayTick(std::uint64_t generation) const {
    return generation == generation_ && !isPaused();
}

void SystemMonitor::endLoop(std::uint64_t generation) {
    if (generation == generation_) monitoringTask_ = nullptr;
}

void SystemMonitor::firstTick(const std::shared_ptr<MainTask>& task, std::uint64_t generation) {
    if (!mayTick(generation)) return endLoop(generation);
    if (!isDashboardLiveResizeActive_) requestFastProviders(true, generation);
    scheduleSlowProviderStartup(generation);
    sleepUntilNextTick(task, generation);
}

void SystemMonitor::sleepUntilNextTick(const std::shared_ptr<MainTask>& task,
                                       std::uint64_t generation) {
    task->sleep(loopSleep(settings_->refreshInterval()),
                [weak = weak_from_this(), task, generation] {
                    if (const auto self = weak.lock()) self->nextTick(task, generation);
                });
}

void SystemMonitor::nextTick(const std::shared_ptr<MainTask>& task, std::uint64_t generation) {
    if (!mayTick(generation)) return endLoop(generation);
    if (!isDashboardLiveResizeActive_) {
        requestFastProviders(false, generation);
        if (slowProvidersEnabled_) requestSlowProviders(false, generation);
    }
    sleepUntilNextTick(task, generation);
}

void SystemMonitor::scheduleSlowProviderStartup(std::uint64_t generation) {
    cancelTask(startupTask_);
    slowProvidersEnabled_ = false;
    startupTask_ = std::make_shared<MainTask>(mainLoop_);
    sleepUntilStage(startupTask_, 1, generation);
}

void SystemMonitor::sleepUntilStage(const std::shared_ptr<MainTask>& task, int stage,
                                    std::uint64_t generation) {
    task->sleep(stageDelay, [weak = weak_from_this(), task, stage, generation] {
        if (const auto self = weak.lock()) self->runStage(task, stage, generation);
    });
}

void SystemMonitor::runStage(const std::shared_ptr<MainTask>& task, int stage,
                             std::uint64_t generation) {
    if (!isDashboardLiveResizeActive_) requestStage(stage, true, generation);
    if (stage < lastStage) return sleepUntilStage(task, stage + 1, generation);
    if (mayTick(generation)) slowProvidersEnabled_ = true;
    startupTask_ = nullptr;
}

void SystemMonitor::stopCoordinator(bool invalidatePendingResults) {
    cancelTask(monitoringTask_);
    cancelTask(startupTask_);
    slowProvidersEnabled_ = false;
    if (!invalidatePendingResults) return;
    ++generation_;
    cancelTask(pendingCommitTask_);
    pendingUpdate_ = PendingUpdate{};
    if (sampler_) sampler_->resetDeltaBaselines();
}

}  // namespace vantor
