#include "sampling/snapshot_export.h"

#include <string>
#include <utility>
#include <variant>

#include "model/snapshot_document.h"

namespace vantor {

SnapshotExport::SnapshotExport(SystemSnapshot snapshot, std::filesystem::path destination,
                               std::shared_ptr<AtomicFileWriter> files)
    : snapshot_(std::move(snapshot)),
      destination_(std::move(destination)),
      files_(std::move(files)) {}

std::optional<DescribedError> SnapshotExport::run() {
    auto error = encodeAndWrite();
    const std::lock_guard lock(mutex_);
    isOver_ = true;
    ended_.notify_all();
    return error;
}

std::optional<DescribedError> SnapshotExport::encodeAndWrite() {
    if (isCancelled()) return std::nullopt;
    const auto encoded = encodedSnapshot(snapshot_);
    if (const auto* error = std::get_if<DescribedError>(&encoded)) return *error;
    if (isCancelled()) return std::nullopt;
    return files_->write(destination_, std::get<std::string>(encoded));
}

void SnapshotExport::cancel() {
    const std::lock_guard lock(mutex_);
    isCancelled_ = true;
}

bool SnapshotExport::isCancelled() const {
    const std::lock_guard lock(mutex_);
    return isCancelled_;
}

bool SnapshotExport::waitUntilOver(std::chrono::milliseconds limit) const {
    std::unique_lock lock(mutex_);
    return ended_.wait_for(lock, limit, [&] { return isOver_; });
}

}  // namespace vantor
