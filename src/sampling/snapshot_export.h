#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>

#include "model/described_error.h"
#include "model/system_snapshot.h"
#include "platform/atomic_file_writer.h"

namespace vantor {

/// The writing of one snapshot into a file: created and watched by the main thread, run once on
/// another one. Both hold it.
class SnapshotExport {
  public:
    SnapshotExport(SystemSnapshot snapshot, std::filesystem::path destination,
                   std::shared_ptr<AtomicFileWriter> files);
    SnapshotExport(const SnapshotExport&) = delete;
    SnapshotExport& operator=(const SnapshotExport&) = delete;

    /// Encodes and writes, unless cancelled before either; absent when there is nothing to
    /// complain of. May take as long as the disk does.
    std::optional<DescribedError> run();

    /// From now on nothing is begun; a write that has begun is brought to its end. Any thread.
    void cancel();

    /// Whether run is over, within `limit`. Any thread but the one that runs.
    bool waitUntilOver(std::chrono::milliseconds limit) const;

  private:
    std::optional<DescribedError> encodeAndWrite();
    bool isCancelled() const;

    const SystemSnapshot snapshot_;
    const std::filesystem::path destination_;
    const std::shared_ptr<AtomicFileWriter> files_;
    mutable std::mutex mutex_;
    mutable std::condition_variable ended_;
    bool isCancelled_ = false;
    bool isOver_ = false;
};

}  // namespace vantor
