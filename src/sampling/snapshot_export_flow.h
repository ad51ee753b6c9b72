#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "platform/export_platform.h"
#include "platform/machine.h"
#include "platform/main_loop.h"
#include "platform/serial_queue.h"
#include "sampling/main_task.h"
#include "sampling/snapshot_export.h"

namespace vantor {

/// Saving a snapshot into a file of the user's choice: the dialog, the writing in the background,
/// and an alert if that fails. The queue is made when the user confirms and goes with the result,
/// so that a disk that hangs costs one thread and no thread idles. One at a time. Main thread; held
/// by shared_ptr, as its steps refer to it weakly.
class SnapshotExportFlow : public std::enable_shared_from_this<SnapshotExportFlow> {
  public:
    /// Returns the snapshot to export; called until `abandon`.
    using Source = std::function<const SystemSnapshot&()>;

    /// With an incomplete platform, `begin` does nothing.
    SnapshotExportFlow(ExportPlatform platform, std::shared_ptr<Machine> machine,
                       std::shared_ptr<MainLoop> mainLoop,
                       std::shared_ptr<SerialQueueFactory> queues)
        : platform_(std::move(platform)),
          machine_(std::move(machine)),
          mainLoop_(std::move(mainLoop)),
          queues_(std::move(queues)) {}

    /// Asks the user for a file, and writes into it what `source` gives when the user confirms.
    /// Does nothing while an earlier export is under way.
    void begin(Source source);

    /// From the dialog to the result.
    bool isActive() const { return isActive_; }

    /// From the user's confirmation to the result.
    bool isWriting() const { return worker_ != nullptr; }

    /// For when the session ends: true once no file is being written, false after `limit`. A write
    /// that goes on is brought to its end even without this object; if the program ends before, the
    /// old file stays as it was.
    bool waitUntilWritten(std::chrono::milliseconds limit) const;

    /// Nothing is asked or begun from now on, and no result is shown.
    void abandon();

  private:
    void dialogEnded(std::optional<std::filesystem::path> destination);
    void write(std::filesystem::path destination);
    static void ended(const std::weak_ptr<SnapshotExportFlow>& flow,
                      const std::optional<DescribedError>& error);

    const ExportPlatform platform_;
    std::shared_ptr<Machine> machine_;
    std::shared_ptr<MainLoop> mainLoop_;
    std::shared_ptr<SerialQueueFactory> queues_;
    Source source_;                       // while it is active
    std::unique_ptr<SaveDialog> dialog_;  // while it is open
    std::unique_ptr<SerialQueue> queue_;  // while a file is written, as are the two below
    std::shared_ptr<SnapshotExport> worker_;
    std::shared_ptr<MainTask> completion_;
    bool isActive_ = false;
};

}  // namespace vantor
