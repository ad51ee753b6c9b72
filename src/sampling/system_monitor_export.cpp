#include <utility>

#include "model/snapshot_file_name.h"
#include "sampling/system_monitor.h"

/// Saving the published snapshot into a file of the user's choice.
namespace vantor {

void SystemMonitor::exportSnapshot() {
    if (isExportFlowActive_ || !exportPlatform_.isWhole()) return;
    const Timestamp moment = fileMoment(dashboardState().snapshot, machine_->wallClock().now());
    isExportFlowActive_ = true;
    saveDialog_ = exportPlatform_.saveDialogs->makeSaveDialog(
        {.title = "Export System Snapshot",
         .proposedName = snapshotFileName(exportPlatform_.calendar->at(moment)),
         .contentType = "application/json",
         .mayCreateFolders = true});
    saveDialog_->begin([weak = weak_from_this()](std::optional<std::filesystem::path> destination) {
        if (const auto self = weak.lock()) self->saveDialogEnded(std::move(destination));
    });
}

void SystemMonitor::saveDialogEnded(std::optional<std::filesystem::path> destination) {
    // It is the dialog that is calling: it goes in the next turn of the loop.
    mainLoop_->post([ended = std::shared_ptr(std::move(saveDialog_))] {});
    if (!destination || destination->empty()) {
        isExportFlowActive_ = false;
        return;
    }
    writeSnapshotTo(*std::move(destination));
}

void SystemMonitor::writeSnapshotTo(std::filesystem::path destination) {
    exportWorkerTask_ = std::make_shared<SnapshotExport>(
        dashboardState().snapshot, std::move(destination), exportPlatform_.files);
    exportCompletionTask_ = std::make_shared<MainTask>(mainLoop_);
    // A thread of its own, because a disk may hang as a probe may.
    exportQueue_ = queues_->makeQueue("com.kestrone.Vantor.export");
    exportQueue_->submit([weak = weak_from_this(), loop = mainLoop_, worker = exportWorkerTask_,
                          completion = exportCompletionTask_] {
        auto error = worker->run();
        loop->post([weak, completion, error = std::move(error)] {
            if (!completion->isCancelled()) exportEnded(weak, error);
        });
    });
}

void SystemMonitor::exportEnded(const std::weak_ptr<SystemMonitor>& monitor,
                                const std::optional<DescribedError>& error) {
    auto self = monitor.lock();
    if (!self) return;
    self->exportQueue_ = nullptr;
    self->exportWorkerTask_ = nullptr;
    self->exportCompletionTask_ = nullptr;
    self->isExportFlowActive_ = false;
    if (!error) return;
    const auto alerts = self->exportPlatform_.alerts;
    self = nullptr;  // the monitor may end while the alert is read
    alerts->runModal({"Snapshot Export Failed", error->description});
}

bool SystemMonitor::waitForExport(std::chrono::milliseconds limit) const {
    const auto worker = exportWorkerTask_;
    return !worker || worker->waitUntilOver(limit);
}

}  // namespace vantor
