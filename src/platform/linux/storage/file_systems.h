#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct statvfs;

namespace vantor {

/// What mounted file systems say of themselves. A question may hang for as long as the file system
/// does. One thread at a time.
class FileSystems {
  public:
    struct Space {
        std::uint64_t fragmentSize = 0;  ///< bytes of one block
        /// Used and available ones, without those that are kept for the privileged.
        std::uint64_t blocks = 0;
        std::uint64_t availableBlocks = 0;  ///< to a user without privileges
        bool isReadOnly = false;
        /// Which mount answered, by its number in the mount table; absent where the kernel does not
        /// say (before 5.8).
        std::optional<std::uint64_t> mountID;
    };

    /// A mounted file system that may hang, as others can be counted on not to.
    struct Place {
        std::string path;
        std::string mount;  ///< tells it from what was mounted at the same path before
    };

    virtual ~FileSystems() = default;

    /// Before the file systems of a list are asked: those of them that may hang.
    virtual void beginPass(const std::vector<Place>&) {}

    /// Absent when the call fails.
    virtual std::optional<Space> space(const std::string& path) = 0;
};

/// The figures of an answer that says nothing of the mount. What is used of them, what is available
/// and the share of both are df's. Pure.
FileSystems::Space spaceIn(const struct statvfs& answer);

/// Any thread, several at once.
std::shared_ptr<FileSystems> makeLiveFileSystems();

}  // namespace vantor
