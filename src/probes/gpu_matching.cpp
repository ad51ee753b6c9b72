#include "probes/gpu_matching.h"

#include <algorithm>
#include <string_view>

#include "probes/gpu_names.h"

namespace vantor {

namespace {

using Index = std::optional<std::size_t>;

bool isIn(std::span<const std::size_t> set, std::size_t index) {
    return std::find(set.begin(), set.end(), index) != set.end();
}

/// Whether the predicate holds for a device at another place than `own`.
template <class Predicate>
bool anyOther(std::span<const MetalDeviceMetadata> devices, std::size_t own, Predicate predicate) {
    for (std::size_t i = 0; i < devices.size(); ++i) {
        if (i != own && predicate(devices[i])) return true;
    }
    return false;
}

bool isNamedLike(const MetalDeviceMetadata& device, std::string_view normalizedName) {
    return !device.normalizedName.empty() && areSimilarNames(device.normalizedName, normalizedName);
}

Index indexByIdentifier(const MetalDeviceMetadata& device, std::span<const RegistryStats> in,
                        std::span<const std::size_t> excluding) {
    for (std::size_t i = 0; i < in.size(); ++i) {
        if (in[i].registryEntryID == device.registryEntryID && !isIn(excluding, i)) return i;
    }
    return std::nullopt;
}

/// The one entry that has the device's name and no other device's; one that is taken counts too,
/// because it makes two of them doubtful.
Index indexByName(const MetalDeviceMetadata& device, std::size_t own,
                  std::span<const RegistryStats> in,
                  std::span<const MetalDeviceMetadata> metalDevices) {
    if (device.normalizedName.empty()) return std::nullopt;
    const auto isAnothersName = [&](std::string_view name) {
        return anyOther(metalDevices, own, [name](const MetalDeviceMetadata& other) {
            return isNamedLike(other, name);
        });
    };
    if (isAnothersName(device.normalizedName)) return std::nullopt;
    Index found;
    for (std::size_t i = 0; i < in.size(); ++i) {
        const RegistryStats& entry = in[i];
        const bool isAnothers = anyOther(metalDevices, own, [&](const MetalDeviceMetadata& other) {
            return entry.registryEntryID == other.registryEntryID;
        });
        if (isAnothers || entry.normalizedName.empty()) continue;
        if (!isNamedLike(device, entry.normalizedName)) continue;
        if (isAnothersName(entry.normalizedName)) continue;
        if (found) return std::nullopt;
        found = i;
    }
    return found;
}

}  // namespace

void sortRegistryStats(std::vector<RegistryStats>& stats) {
    std::stable_sort(stats.begin(), stats.end(),
                     [](const RegistryStats& one, const RegistryStats& other) {
                         const int order = one.normalizedName.compare(other.normalizedName);
                         if (order != 0) return order < 0;
                         if (!one.registryEntryID || !other.registryEntryID)
                             return one.registryEntryID && !other.registryEntryID;
                         return *one.registryEntryID < *other.registryEntryID;
                     });
}

std::optional<std::size_t> matchingRegistryStatsIndex(
    const MetalDeviceMetadata& device, std::size_t fallbackIndex, std::span<const RegistryStats> in,
    std::span<const MetalDeviceMetadata> metalDevices, std::span<const std::size_t> excluding) {
    if (const Index index = indexByIdentifier(device, in, excluding)) return index;
    const Index named = indexByName(device, fallbackIndex, in, metalDevices);
    if (named && !isIn(excluding, *named)) return named;
    if (metalDevices.size() != 1 || in.size() != 1 || fallbackIndex != 0) return std::nullopt;
    if (isIn(excluding, 0)) return std::nullopt;
    const std::string_view name = in.front().normalizedName;
    const bool areBothNamed = !device.normalizedName.empty() && !name.empty();
    if (areBothNamed && !areSimilarNames(device.normalizedName, name)) return std::nullopt;
    return 0;
}

}  // namespace vantor
