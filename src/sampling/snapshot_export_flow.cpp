#include "sampling/snapshot_export_flow.h"

#include <utility>

#include "model/snapshot_file_name.h"

namespace vantor {

void SnapshotExportFlow::begin(Source source) {
    if (isActive_ || !platform_.isWhole()) return;
    source_ = std::move(source);
    const Timestamp moment = fileMoment(source_(), machine_->wallClock().now());
    isActive_ = true;
    dialog_ = platform_.saveDialogs->makeSaveDialog(
        {.title = "Export System Snapshot",
         .proposedName = snapshotFileName(platform_.calendar->at(moment)),
         .contentType = "application/json",
         .mayCreateFolders = true});
    dialog_->begin([weak = weak_from_this()](std::optional<std::filesystem::path> destination) {
        if (const auto self = weak.lock()) self->dialogEnded(std::move(destination));
    });
}

void SnapshotExportFlow::dialogEnded(std::optional<std::filesystem::path> destination) {
    // The dialog is the caller: it is destroyed in the next turn of the loop.
    mainLoop_->post([closed = std::shared_ptr(std::move(dialog_))] {});
    if (!source_ || !destination || destination->empty()) {
        isActive_ = false;
        source_ = {};
        return;
    }
    write(*std::move(destination));
}

void SnapshotExportFlow::write(std::filesystem::path destination) {
    worker_ = std::make_shared<SnapshotExport>(source_(), std::move(destination), platform_.files);
    completion_ = std::make_shared<MainTask>(mainLoop_);
    // A thread of its own, because a disk may hang as a probe may.
    queue_ = queues_->makeQueue("com.kestrone.Vantor.export");
    queue_->submit(
        [weak = weak_from_this(), loop = mainLoop_, worker = worker_, completion = completion_] {
            auto error = worker->run();
            loop->post([weak, completion, error = std::move(error)] {
                if (!completion->isCancelled()) ended(weak, error);
            });
        });
}

void SnapshotExportFlow::ended(const std::weak_ptr<SnapshotExportFlow>& flow,
                               const std::optional<DescribedError>& error) {
    auto self = flow.lock();
    if (!self) return;
    self->queue_ = nullptr;
    self->worker_ = nullptr;
    self->completion_ = nullptr;
    self->source_ = {};
    self->isActive_ = false;
    if (!error) return;
    const auto alerts = self->platform_.alerts;
    self = nullptr;  // the monitor may end while the alert is read
    alerts->runModal({"Snapshot Export Failed", error->description});
}

bool SnapshotExportFlow::waitUntilWritten(std::chrono::milliseconds limit) const {
    const auto worker = worker_;
    return !worker || worker->waitUntilOver(limit);
}

void SnapshotExportFlow::abandon() {
    source_ = {};
    if (worker_) worker_->cancel();
    cancelTask(completion_);
}

}  // namespace vantor
