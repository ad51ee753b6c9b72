#include "platform/linux/storage/volume_list.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <utility>

#include "platform/linux/storage/file_system_kind.h"
#include "platform/linux/storage/mount_tree.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

constexpr std::uint32_t loopMajor = 7;

/// Folders whose insides belong to packages, containers and running programs.
constexpr std::array privateFolders{"/run/"sv, "/snap/"sv, "/var/lib/snapd/"sv,
                                    "/var/lib/docker/"sv, "/var/lib/containers/"sv};

/// Folders into which the system mounts images of its own.
constexpr std::array systemFolders{"/boot/"sv, "/etc/"sv,  "/lib/"sv, "/lib64/"sv, "/opt/"sv,
                                   "/rofs/"sv, "/sbin/"sv, "/bin/"sv, "/usr/"sv,   "/var/"sv};

constexpr std::array imageTypes{"cramfs"sv, "erofs"sv, "iso9660"sv, "squashfs"sv, "udf"sv};

/// `path` lies in one of the folders, or is one where `orIsOne`.
template <class Folders>
bool liesIn(const Folders& folders, std::string_view path, bool orIsOne) {
    return std::any_of(folders.begin(), folders.end(), [&](std::string_view folder) {
        if (path.starts_with(folder)) return true;
        return orIsOne && path == folder.substr(0, folder.size() - 1);
    });
}

bool isPrivate(std::string_view path) {
    if (path.find("/.") != std::string_view::npos) return true;
    if (path.starts_with("/run/media/")) return false;
    return liesIn(privateFolders, path, false);
}

bool isSystemImage(const Mount& mount) {
    return mount.major == loopMajor &&
           std::find(imageTypes.begin(), imageTypes.end(), mount.type) != imageTypes.end() &&
           liesIn(systemFolders, mount.mountPoint, true);
}

/// Whether the options of a btrfs name that subvolume. Its name may hold commas.
bool isSubvolume(std::string_view options, std::string_view name) {
    constexpr std::string_view key = "subvol=";
    const auto at = options.starts_with(key) ? 0 : options.find(",subvol=");
    if (at == std::string_view::npos) return true;  // old kernels do not say
    const std::string_view said = options.substr(options.find('=', at) + 1);
    return said.starts_with(name) && (said.size() == name.size() || said[name.size()] == ',');
}

/// A folder or a file of a file system that is mounted somewhere else, as containers have
/// /etc/hosts. A subvolume of btrfs is a root of its own.
bool isPartOfAnother(const Mount& mount) {
    if (mount.root == "/") return false;
    return mount.type != "btrfs" || !isSubvolume(mount.superOptions, mount.root);
}

bool isHidden(const Mount& mount) {
    if (mount.isRoot()) return false;
    return isPrivate(mount.mountPoint) || isSystemImage(mount) || isPartOfAnother(mount);
}

ListedMount classify(const Mount& mount, FileSystemKind kind, const MountTree::Arrival& arrival) {
    ListedMount listed;
    listed.mayHang = mayHang(kind) || arrival.mayHangOnTheWay;
    if (mount.isRoot()) {
        listed.isLocal = kind != FileSystemKind::network;
        listed.isBrowsable = true;
        return listed;
    }
    const bool isPseudo = kind == FileSystemKind::pseudo || kind == FileSystemKind::userSpacePseudo;
    listed.isLocal = (isPseudo || isOnDisks(kind)) && !arrival.leavesTheDisks;
    listed.isBrowsable = !isPseudo;
    return listed;
}

/// The mount that stands for its file system comes first.
auto preference(const Mount& mount, bool mayHang) {
    return std::tuple(!mount.isRoot(), mayHang, mount.root != "/", mount.mountPoint.size());
}

/// Leaves one mount of each file system that people see. Two mounts with one device number are
/// mounts of one file system.
void removeDuplicates(std::span<const Mount> mounts, std::vector<ListedMount>& listed) {
    std::vector<ListedMount> seen;
    for (const ListedMount& each : listed) {
        if (each.isLocal && each.isBrowsable) seen.push_back(each);
    }
    const auto device = [&](const ListedMount& m) {
        return std::pair(mounts[m.index].major, mounts[m.index].minor);
    };
    const auto rank = [&](const ListedMount& m) {
        return std::tuple(device(m), preference(mounts[m.index], m.mayHang), m.index);
    };
    std::sort(seen.begin(), seen.end(),
              [&](const ListedMount& a, const ListedMount& b) { return rank(a) < rank(b); });
    std::vector<std::size_t> duplicates;
    for (std::size_t i = 1; i < seen.size(); ++i) {
        if (device(seen[i]) == device(seen[i - 1])) duplicates.push_back(seen[i].index);
    }
    std::sort(duplicates.begin(), duplicates.end());
    std::erase_if(listed, [&](const ListedMount& each) {
        return std::binary_search(duplicates.begin(), duplicates.end(), each.index);
    });
}

}  // namespace

std::vector<ListedMount> listMounts(std::span<const Mount> mounts) {
    std::vector<FileSystemKind> kinds;
    kinds.reserve(mounts.size());
    for (const Mount& mount : mounts)
        kinds.push_back(kindOf(mount));
    const MountTree tree(mounts, kinds);
    std::vector<ListedMount> listed;
    listed.reserve(mounts.size());
    for (std::size_t i = 0; i < mounts.size(); ++i) {
        if (isHidden(mounts[i])) continue;
        const auto arrival = tree.follow(mounts[i].mountPoint);
        if (arrival.mount != i) continue;
        ListedMount each = classify(mounts[i], kinds[i], arrival);
        each.index = i;
        listed.push_back(each);
    }
    removeDuplicates(mounts, listed);
    return listed;
}

}  // namespace vantor
