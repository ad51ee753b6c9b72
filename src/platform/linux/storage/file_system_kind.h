#pragma once

#include "platform/linux/storage/mount_table.h"

namespace vantor {

/// Who answers for a file system, as far as its line in the mount table tells.
enum class FileSystemKind {
    local,            ///< a block device, or several that it manages itself
    served,           ///< a disk, pool or encrypted folder of this machine, by way of a program
    pseudo,           ///< the kernel, from memory
    hostShare,        ///< the host of this virtual machine
    network,          ///< another machine
    userSpace,        ///< some program, which may do anything
    userSpacePseudo,  ///< a program of the desktop or the container, for its own ends
};

/// Pure. What has no block device and is not known here is taken for a pseudo file system, and a
/// program that is not known for one that may do anything.
FileSystemKind kindOf(const Mount& mount);

/// Whether looking into it may hang for as long as someone else likes.
constexpr bool mayHang(FileSystemKind kind) {
    return kind != FileSystemKind::local && kind != FileSystemKind::pseudo;
}

/// Whether what it holds is kept on the disks of this machine.
constexpr bool isOnDisks(FileSystemKind kind) {
    return kind == FileSystemKind::local || kind == FileSystemKind::served;
}

}  // namespace vantor
