#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/storage/file_system_kind.h"
#include "platform/linux/storage/mount_table.h"
#include "platform/linux/storage/volume_list.h"

#include "require.h"

namespace {

using vantor::fuzz::require;

/// As the kernel writes a path into the table.
std::string escaped(std::string_view path) {
    std::string written;
    for (const char letter : path) {
        if (std::string_view(" \t\n\\#").find(letter) == std::string_view::npos) {
            written += letter;
            continue;
        }
        const auto code = static_cast<unsigned>(letter);
        written += '\\';
        for (const unsigned digit : {code / 64, code / 8 % 8, code % 8})
            written += static_cast<char>('0' + digit);
    }
    return written;
}

void requireSound(const vantor::Mount& mount) {
    using vantor::FileSystemKind;
    require(mount.mountPoint.starts_with('/') && !mount.type.empty() && !mount.root.empty());
    require(vantor::unescapeMountText(mount.mountPoint).size() <= mount.mountPoint.size());
    const FileSystemKind kind = vantor::kindOf(mount);
    const bool isByAProgram =
        mount.type == "fuse" || mount.type == "fuseblk" || mount.type.starts_with("fuse.");
    if (isByAProgram) require(vantor::mayHang(kind));
    if (mount.major != 0) require(kind != FileSystemKind::pseudo);
}

}  // namespace

/// What is listed must be of the table, each path once, and no file system twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const std::string_view text = fuzz::textOf(data, size);
    require(unescapeMountText(escaped(text)) == text);
    std::vector<Mount> mounts;
    parseMountTable(text, mounts);
    require(std::cmp_less_equal(mounts.size(), std::count(text.begin(), text.end(), '\n')));
    for (const Mount& mount : mounts)
        requireSound(mount);
    std::set<std::string_view> paths;
    std::set<std::pair<std::uint32_t, std::uint32_t>> devices;
    std::size_t next = 0;
    for (const ListedMount& listed : listMounts(mounts)) {
        require(listed.index >= next && listed.index < mounts.size());
        next = listed.index + 1;
        const Mount& mount = mounts[listed.index];
        require(paths.insert(mount.mountPoint).second);
        if (!listed.isLocal || !listed.isBrowsable) continue;
        require(devices.emplace(mount.major, mount.minor).second);
        require(mount.isRoot() || isOnDisks(kindOf(mount)));
        require(kindOf(mount) != FileSystemKind::network);
        require(listed.mayHang || !mayHang(kindOf(mount)));
    }
    return 0;
}
