#include "platform/simulated/simulated_mounted_volumes.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vantor {

namespace {

template <class Entries>
auto findEntry(Entries& entries, const std::string& path) {
    return std::find_if(entries.begin(), entries.end(),
                        [&](const auto& entry) { return entry.volume.path == path; });
}

}  // namespace

SimulatedMountedVolumes::Entry& SimulatedMountedVolumes::add(const std::string& path,
                                                             std::optional<std::string> name,
                                                             std::int64_t totalCapacity) {
    Entry entry;
    entry.volume = {path, path.substr(path.rfind('/') + 1)};
    entry.classification = {true, true};
    entry.details = {std::move(name), totalCapacity, totalCapacity / 2, true, false, false};
    return volumes.emplace_back(std::move(entry));
}

SimulatedMountedVolumes::Entry& SimulatedMountedVolumes::at(const std::string& path) {
    const auto found = findEntry(volumes, path);
    if (found == volumes.end()) std::abort();
    return *found;
}

std::optional<std::vector<MountedVolumes::Volume>> SimulatedMountedVolumes::mountedVolumes() {
    ++enumerations;
    if (onMountedVolumes) onMountedVolumes();
    if (enumerationFails) return std::nullopt;
    std::vector<Volume> list;
    for (const Entry& entry : volumes)
        list.push_back(entry.volume);
    return list;
}

MountedVolumes::Classification SimulatedMountedVolumes::classification(const Volume& volume) {
    const auto found = findEntry(volumes, volume.path);
    return found == volumes.end() ? Classification{} : found->classification;
}

MountedVolumes::Details SimulatedMountedVolumes::details(const Volume& volume) {
    detailedPaths.push_back(volume.path);
    const auto found = findEntry(volumes, volume.path);
    return found == volumes.end() ? Details{} : found->details;
}

}  // namespace vantor
