#pragma once

#include "platform/linux/mount_table.h"

namespace vantor {

/// Who answers for a file system, as far as its line in the mount table tells.
enum class FileSystemKind {
    local,            ///< a block device, or several that it manages itself
    pseudo,           ///< the kernel, from memory
    hostShare,        ///< the host of this virtual machine
    network,          ///< another machine
    userSpace,        ///< some program, which may do anything
    userSpacePseudo,  ///< a program of the desktop or the container, for its own ends
};

/// Pure. What has no block device and is not known here is taken for a pseudo file system.
FileSystemKind kindOf(const Mount& mount);

/// Whether looking into it may hang for as long as someone else likes.
constexpr bool mayHang(FileSystemKind kind) {
    return kind != FileSystemKind::local && kind != FileSystemKind::pseudo;
}

}  // namespace vantor
