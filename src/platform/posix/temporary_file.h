#pragma once

#include <string>
#include <string_view>

#include "platform/posix/file_calls.h"

namespace vantor {

/// A file on its way into a folder: complete before it takes its place, and gone with this object
/// when it never does. It is locked meanwhile, so that it is not taken for a leftover. Failures
/// are errno values, 0 for none. One thread.
class TemporaryFile {
  public:
    /// A nameless file is gone even if the program crashes before it is in place, but not every
    /// file system has such; a named one is hidden, and its name cannot be foreseen.
    enum class Kind { nameless, named };

    /// `folder` stays the caller's and open.
    TemporaryFile(FileCalls& calls, int folder) : calls_(calls), folder_(folder) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// Whether that could be the passing name of such a file.
    static bool isPassingName(std::string_view name);

    int create(Kind kind);
    int descriptor() const { return file_; }

    /// All of them, however few the system takes at a time.
    int write(std::string_view bytes);

    /// Waits until the disk has what was written.
    int sync();

    /// The last chance of a disk to say that it did not take everything. The file stays open and
    /// locked.
    int flush();

    /// Puts a nameless file straight into the place of `name`; EEXIST where another has it.
    int takePlace(const std::string& name);

    /// Gives a nameless file its passing name, so that it can replace another.
    int giveName();

    /// Puts the file in the place of `name`, whatever file had it.
    int replace(const std::string& name);

  private:
    FileCalls& calls_;
    int folder_;
    int file_ = -1;
    std::string name_;  // empty: none in the folder
};

}  // namespace vantor
