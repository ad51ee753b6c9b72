#include "platform/simulated/simulated_mounted_volumes.h"

namespace vantor {

std::optional<std::vector<MountedVolumes::Volume>> SimulatedMountedVolumes::mountedVolumes() {
    return std::nullopt;
}

MountedVolumes::Classification SimulatedMountedVolumes::classification(const Volume&) {
    return {};
}

MountedVolumes::Details SimulatedMountedVolumes::details(const Volume&) {
    return {};
}

}  // namespace vantor
