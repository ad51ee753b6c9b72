#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/linux/storage/file_system_kind.h"
#include "platform/linux/storage/mount_table.h"

namespace vantor {

/// Which mount a path leads to. A later mount hides those below it, and all that they hold.
class MountTree {
  public:
    /// Both must outlive this; the kinds are those of the mounts.
    MountTree(std::span<const Mount> mounts, std::span<const FileSystemKind> kinds);

    struct Arrival {
        std::optional<std::size_t> mount;  ///< which of the mounts; absent when none
        /// Some file system on the way (other than the one of "/") is asked over the network or by
        /// way of a program, so that following the path may hang.
        bool mayHangOnTheWay = false;
        /// One of these is not on the disks of this machine.
        bool leavesTheDisks = false;
    };

    /// Follows the path, written as in the table, like the kernel does: into whatever is mounted on
    /// each folder of the way.
    Arrival follow(std::string_view path) const;

  private:
    static constexpr std::uint64_t outside = UINT64_MAX;  // the parent of those not in the table

    std::optional<std::size_t> childAt(std::uint64_t parent, std::string_view path) const;

    std::span<const Mount> mounts_;
    std::span<const FileSystemKind> kinds_;
    std::vector<std::uint64_t> parents_;  // by mount
    std::vector<std::size_t> order_;      // by parent and mount point
};

}  // namespace vantor
