#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/linux/linux_roots.h"

namespace vantor {

/// A copy of one machine recorded in tests/machines, gone with this object. The recording's
/// folder is described in tests/machines/README.md.
class RecordedTree {
  public:
    /// Throws when there is no such recording, or it is malformed.
    explicit RecordedTree(const std::string& name);
    RecordedTree(const RecordedTree&) = delete;
    RecordedTree& operator=(const RecordedTree&) = delete;
    ~RecordedTree();

    LinuxRoots roots() const {
        return {root_ / "proc", root_ / "sys", root_ / "etc", root_ / "run", root_ / "usr"};
    }
    std::filesystem::path calls() const { return root_ / "calls"; }

    /// Lays the files of the second pass over those of the first. They are written in place, as
    /// kernel files change: open descriptors see the new content.
    void applySecondPass() const;

    /// The regular files of the kernel's trees and the system's own; no links, not the calls.
    std::vector<std::filesystem::path> files() const;

    /// The folder of one recording, and the names of all of them in order.
    static std::filesystem::path recording(const std::string& name);
    static std::vector<std::string> names();

  private:
    std::filesystem::path recording_;
    std::filesystem::path root_;
};

/// The whole content of a file of a recording; throws when it cannot be read.
std::string readRecordedFile(const std::filesystem::path& path);

}  // namespace vantor
