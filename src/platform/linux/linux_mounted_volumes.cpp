#include "platform/linux/linux_mounted_volumes.h"

namespace vantor {

std::optional<std::vector<MountedVolumes::Volume>> LinuxMountedVolumes::mountedVolumes() {
    return std::nullopt;
}

MountedVolumes::Classification LinuxMountedVolumes::classification(const Volume&) {
    return {};
}

MountedVolumes::Details LinuxMountedVolumes::details(const Volume&) {
    return {};
}

}  // namespace vantor
