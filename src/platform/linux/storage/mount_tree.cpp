#include "platform/linux/storage/mount_tree.h"

#include <algorithm>
#include <tuple>

namespace vantor {

MountTree::MountTree(std::span<const Mount> mounts, std::span<const FileSystemKind> kinds)
    : mounts_(mounts), kinds_(kinds) {
    std::vector<std::uint64_t> ids;
    ids.reserve(mounts.size());
    for (const Mount& mount : mounts)
        ids.push_back(mount.id);
    std::sort(ids.begin(), ids.end());
    for (const Mount& mount : mounts) {
        const bool isInside =
            mount.parent != mount.id && std::binary_search(ids.begin(), ids.end(), mount.parent);
        parents_.push_back(isInside ? mount.parent : outside);
        order_.push_back(order_.size());
    }
    std::stable_sort(order_.begin(), order_.end(), [this](std::size_t a, std::size_t b) {
        return std::tie(parents_[a], mounts_[a].mountPoint) <
               std::tie(parents_[b], mounts_[b].mountPoint);
    });
}

std::optional<std::size_t> MountTree::childAt(std::uint64_t parent, std::string_view path) const {
    const auto wanted = std::tie(parent, path);
    const auto end =
        std::upper_bound(order_.begin(), order_.end(), wanted, [this](auto& key, std::size_t m) {
            return key < std::tie(parents_[m], mounts_[m].mountPoint);
        });
    if (end == order_.begin()) return std::nullopt;
    const std::size_t found = *(end - 1);
    if (parents_[found] != parent || mounts_[found].mountPoint != path) return std::nullopt;
    return found;
}

MountTree::Arrival MountTree::follow(std::string_view path) const {
    Arrival arrival;
    std::uint64_t current = outside;
    // No way leads through a mount twice; a damaged table may have circles.
    std::size_t stepsLeft = mounts_.size();
    for (std::size_t end = 1; end <= path.size();) {
        for (auto child = childAt(current, path.substr(0, end)); child && stepsLeft > 0;
             child = childAt(current, path.substr(0, end))) {
            --stepsLeft;
            if (arrival.mount && !mounts_[*arrival.mount].isRoot() &&
                mayHang(kinds_[*arrival.mount])) {
                arrival.mayHangOnTheWay = true;
                if (!isOnDisks(kinds_[*arrival.mount])) arrival.leavesTheDisks = true;
            }
            arrival.mount = child;
            current = mounts_[*child].id;
        }
        if (end == path.size()) break;
        const auto slash = path.find('/', end + 1);
        end = slash == std::string_view::npos ? path.size() : slash;
    }
    return arrival;
}

}  // namespace vantor
