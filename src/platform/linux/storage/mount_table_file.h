#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "platform/file_descriptor.h"

namespace vantor {

/// The mount table, /proc/self/mountinfo. It is kept open, as polling the open file tells that the
/// table has changed. One thread at a time.
///
/// Some texts in it change without a notice, as the source of a file system on several disks: every
/// minute it counts as changed. So it does always where it is a plain file, of a recorded machine.
class MountTableFile {
  public:
    using Time = std::chrono::steady_clock::time_point;
    using Now = std::function<Time()>;

    explicit MountTableFile(std::filesystem::path path, Now now = std::chrono::steady_clock::now)
        : path_(std::move(path)), now_(std::move(now)) {}

    /// Whether the table may differ from what was read last. Never waits.
    bool mayHaveChanged();

    /// The whole of it; absent when it cannot be read.
    std::optional<std::string> read();

  private:
    std::filesystem::path path_;
    Now now_;
    FileDescriptor file_;  // open when changes of what was read are told
    Time readAt_;
};

}  // namespace vantor
