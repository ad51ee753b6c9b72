#include "probes/storage_reader.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "model/utf8.h"
#include "platform/native_machine.h"

namespace vantor {

namespace {

std::string displayName(const MountedVolumes::Volume& volume,
                        const MountedVolumes::Details& details) {
    const std::string& name = details.name ? *details.name : volume.lastPathComponent;
    return repairedUTF8(name.empty() ? volume.path : name);
}

bool volumeComesFirst(const VolumeStats& a, const VolumeStats& b, const NameRanks& ranks) {
    const bool aIsRoot = a.path == "/";
    const bool bIsRoot = b.path == "/";
    if (aIsRoot != bIsRoot) return aIsRoot;
    if (a.isInternal != b.isInternal) return a.isInternal;
    return ranks.of(a.name) < ranks.of(b.name);
}

}  // namespace

StorageReader::StorageReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)), ranks_(makeNativeNameOrder()) {}

void StorageReader::examine(const MountedVolumes::Volume& volume, Findings& findings) {
    MountedVolumes& platform = machine_->mountedVolumes();
    std::string path = distinctUTF8(volume.path);
    const auto [isLocal, isBrowsable] = platform.classification(volume);
    if (!isLocal || !isBrowsable) {
        findings.classificationWasUnknown = true;
        if (lastEligiblePaths_.contains(path)) findings.listedVolumeBecameUnknown = true;
        return;
    }
    if (!*isLocal || !*isBrowsable) return;
    const MountedVolumes::Details details = platform.details(volume);
    if (!details.totalCapacity || *details.totalCapacity < 1) return;
    if (!details.availableCapacity || *details.availableCapacity < 0 || !details.isInternal ||
        !details.isRemovable || !details.isReadOnly) {
        findings.isIncomplete = true;
        return;
    }
    const std::int64_t available = std::min(*details.availableCapacity, *details.totalCapacity);
    findings.volumes.push_back({displayName(volume, details), std::move(path),
                                static_cast<std::uint64_t>(*details.totalCapacity),
                                static_cast<std::uint64_t>(available), *details.isInternal,
                                *details.isRemovable, *details.isReadOnly});
}

std::optional<std::vector<VolumeStats>> StorageReader::read() {
    const auto mounted = machine_->mountedVolumes().mountedVolumes();
    if (!mounted) return std::nullopt;
    Findings findings;
    for (const MountedVolumes::Volume& volume : *mounted)
        examine(volume, findings);
    if (findings.isIncomplete || findings.listedVolumeBecameUnknown ||
        (findings.volumes.empty() && findings.classificationWasUnknown)) {
        return std::nullopt;
    }
    ranks_.learn(findings.volumes);
    std::stable_sort(findings.volumes.begin(), findings.volumes.end(),
                     [this](const VolumeStats& a, const VolumeStats& b) {
                         return volumeComesFirst(a, b, ranks_);
                     });
    lastEligiblePaths_.clear();
    for (const VolumeStats& volume : findings.volumes)
        lastEligiblePaths_.insert(volume.path);
    return std::move(findings.volumes);
}

}  // namespace vantor
