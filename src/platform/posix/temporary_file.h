#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/posix/file_calls.h"

namespace vantor {

/// A file on its way into a folder: complete before it takes its place, and gone with this object
/// when it never does. Failures are errno values, 0 for none. One thread.
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

    int create(Kind kind);
    int descriptor() const { return file_; }

    /// All of them, however few the system takes at a time.
    int write(std::string_view bytes);

    /// Waits until the disk has what was written.
    int sync();

    /// Gives a nameless file its passing name, so that it can be put in a place.
    int giveName();

    /// The last chance of a disk to say that it did not take everything.
    int close();

    /// Puts the file in the place of `name`, whatever file had it.
    int replace(const std::string& name);

  private:
    FileCalls& calls_;
    int folder_;
    int file_ = -1;
    std::string name_;  // empty: none in the folder
};

}  // namespace vantor
