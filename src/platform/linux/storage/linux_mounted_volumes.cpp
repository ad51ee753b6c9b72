#include "platform/linux/storage/linux_mounted_volumes.h"

#include <cstdint>
#include <limits>

#include "platform/linux/storage/block_device.h"

namespace vantor {

namespace {

std::optional<std::int64_t> bytes(std::uint64_t blocks, std::uint64_t blockSize) {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (blockSize != 0 && blocks > largest / blockSize) return std::nullopt;
    return static_cast<std::int64_t>(blocks * blockSize);
}

/// Numbers of mounts and devices are given away again as soon as they are free.
std::string identityOf(const Mount& mount) {
    std::string identity = std::to_string(mount.id);
    for (const std::uint32_t number : {mount.major, mount.minor})
        identity.append(" ").append(std::to_string(number));
    for (const std::string_view text : {mount.root, mount.type, mount.source})
        identity.append(" ").append(text);
    return identity;
}

/// The kernel writes it first.
bool saysReadOnly(std::string_view options) {
    return options == "ro" || options.starts_with("ro,");
}

}  // namespace

void LinuxMountedVolumes::take(std::string table) {
    // Of the same table the same is said.
    if (table == table_) return;
    table_ = std::move(table);
    parseMountTable(table_, mounts_);
    listed_ = listMounts(mounts_);
    paths_.clear();
    mayHang_.clear();
    for (const ListedMount& each : listed_) {
        paths_.push_back(unescapeMountText(mounts_[each.index].mountPoint));
        if (each.isLocal && each.isBrowsable && each.mayHang)
            mayHang_.push_back({paths_.back(), identityOf(mounts_[each.index])});
    }
}

std::optional<std::vector<MountedVolumes::Volume>> LinuxMountedVolumes::mountedVolumes() {
    if (tableFile_.mayHaveChanged()) {
        auto text = tableFile_.read();
        take(text ? std::move(*text) : std::string());
        if (!text) return std::nullopt;
    }
    fileSystems_->beginPass(mayHang_);
    std::vector<Volume> volumes;
    volumes.reserve(paths_.size());
    for (const std::string& path : paths_)
        volumes.push_back({path, path.substr(path.rfind('/') + 1)});
    return volumes;
}

const ListedMount* LinuxMountedVolumes::find(const std::string& path) {
    // They are asked for in the order of the list, each one or two times.
    for (std::size_t tried = 0; tried < paths_.size(); ++tried, ++lastFound_) {
        if (lastFound_ >= paths_.size()) lastFound_ = 0;
        if (paths_[lastFound_] == path) return &listed_[lastFound_];
    }
    return nullptr;
}

MountedVolumes::Classification LinuxMountedVolumes::classification(const Volume& volume) {
    const ListedMount* const listed = find(volume.path);
    if (!listed) return {};
    return {listed->isLocal, listed->isBrowsable};
}

MountedVolumes::Details LinuxMountedVolumes::details(const Volume& volume) {
    const ListedMount* const listed = find(volume.path);
    if (!listed || !listed->isLocal || !listed->isBrowsable) return {};
    const Mount& mount = mounts_[listed->index];
    BlockDeviceFacts device = readBlockDevice(roots_, mount);
    Details details;
    details.name = mount.type == "zfs" ? unescapeMountText(mount.source) : std::move(device.label);
    details.isInternal = device.isInternal;
    details.isRemovable = device.isRemovable;
    details.isReadOnly = saysReadOnly(mount.options) || saysReadOnly(mount.superOptions);
    const auto space = fileSystems_->space(volume.path);
    // When the volume has gone since the table was read, the folder that it was mounted on answers
    // with another's figures.
    if (!space || space->mountID.value_or(mount.id) != mount.id) return details;
    details.totalCapacity = bytes(space->blocks, space->fragmentSize);
    details.availableCapacity = bytes(space->availableBlocks, space->fragmentSize);
    if (space->isReadOnly) details.isReadOnly = true;
    return details;
}

}  // namespace vantor
