#pragma once

#include <optional>
#include <string>

#include "platform/linux/linux_roots.h"
#include "platform/linux/storage/mount_table.h"

namespace vantor {

/// What sysfs and udev know of the device under a mount. Nothing here touches the file system.
struct BlockDeviceFacts {
    std::optional<std::string> label;  ///< the file system's
    std::optional<bool> isInternal;    ///< absent when the device would not say
    std::optional<bool> isRemovable;
};

/// Through stacks of devices (device mapper, RAID) down to the disks: internal when all of them
/// are, removable when one is. What has no device that sysfs knows is internal, and so is one that
/// this program is not shown, unless its place says otherwise.
BlockDeviceFacts readBlockDevice(const LinuxRoots& roots, const Mount& mount);

}  // namespace vantor
