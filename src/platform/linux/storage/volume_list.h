#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/linux/storage/mount_table.h"

namespace vantor {

/// A mount that is not hidden. What is local and browsable may be looked into; it hangs on another
/// machine or a program only where it is said to.
struct ListedMount {
    std::size_t index = 0;  ///< in the table
    bool isLocal = false;
    bool isBrowsable = false;
    bool mayHang = false;  ///< or what its path leads through

    bool operator==(const ListedMount&) const = default;
};

/// What people would call the volumes among the mounts, in the table's order and each path once.
/// From the table alone. Pure.
///
/// Hidden: what another mount covers, parts of a file system mounted elsewhere, all mounts of a
/// file system but the one that stands for it, and what packages, containers and the system mount
/// for themselves. The mount that is the root is always listed; unless it comes over the network it
/// is local and browsable whatever it is.
std::vector<ListedMount> listMounts(std::span<const Mount> mounts);

}  // namespace vantor
