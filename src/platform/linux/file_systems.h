#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace vantor {

/// What a mounted file system says of itself. Any call may hang for as long as the file system
/// does. One thread at a time.
class FileSystems {
  public:
    /// The figures of statvfs.
    struct Space {
        std::uint64_t fragmentSize = 0;  ///< bytes of one block
        std::uint64_t blocks = 0;
        std::uint64_t availableBlocks = 0;  ///< to a user without privileges
        bool isReadOnly = false;
        /// Which mount answered, by its number in the mount table; absent where the kernel does not
        /// say (before 5.8).
        std::optional<std::uint64_t> mountID;
    };

    virtual ~FileSystems() = default;

    /// Absent when the call fails.
    virtual std::optional<Space> space(const std::string& path) = 0;
};

std::shared_ptr<FileSystems> makeLiveFileSystems();

}  // namespace vantor
