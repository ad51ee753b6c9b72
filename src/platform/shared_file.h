#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/described_error.h"

namespace vantor {

/// A small file that several programs may read and write anew. Any thread but the main one: each
/// call may take as long as the disk does, which is for ever where it hangs.
///
/// An error has the reason only, as one sentence: the user did not choose the file.
class SharedFile {
  public:
    struct Reading {
        std::optional<std::string> bytes;  ///< none where there is no file
        std::optional<DescribedError> error;
    };

    virtual ~SharedFile() = default;

    /// At most `most` bytes, from the beginning.
    virtual Reading read(std::size_t most) = 0;

    /// Absent when the file now holds exactly `bytes`, otherwise the old one is as it was. Makes
    /// the folder where there is none.
    virtual std::optional<DescribedError> write(std::string_view bytes) = 0;

    /// Absent when there is no file now. A symbolic link there is removed itself.
    virtual std::optional<DescribedError> remove() = 0;

    /// Gives the file another name beside its place, which then is free.
    virtual std::optional<DescribedError> putAside() = 0;

    /// Does `work` while no other program does something with the file in the same way. One that
    /// takes too long is not waited for: the work is done then, too.
    virtual void withoutOthers(const std::function<void()>& work) = 0;
};

}  // namespace vantor
