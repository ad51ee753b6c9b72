#include "platform/linux/block_device.h"

#include <fcntl.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/linux/attribute_file.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/udev_data.h"

namespace vantor {

namespace {

namespace fs = std::filesystem;

constexpr int deepestStack = 8;

struct Disk {
    std::optional<bool> isInternal;
    std::optional<bool> isRemovable;
};

/// Where a link of sysfs leads, from the root of sysfs on: "devices/pci0000:00/…/sda/sda1".
std::optional<std::string> readDeviceLink(const fs::path& link) {
    std::error_code error;
    std::string target = fs::read_symlink(link, error).string();
    if (error) return std::nullopt;
    while (target.starts_with("../"))
        target.erase(0, 3);
    return target;
}

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

/// The names in a folder of sysfs; empty when it cannot be read.
std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    return names;
}

/// The device under a name such as "sda2"; "cciss/c0d0" has an exclamation mark in sysfs.
std::optional<std::string> findByName(const LinuxRoots& roots, std::string name) {
    std::replace(name.begin(), name.end(), '/', '!');
    return readDeviceLink(roots.sys / "class/block" / name);
}

/// The device that the device mapper calls by that name: the folder /dev/mapper has links only.
std::optional<std::string> findMapped(const LinuxRoots& roots, std::string_view name) {
    for (const std::string& each : namesIn(roots.sys / "class/block")) {
        if (!each.starts_with("dm-")) continue;
        const auto said = readKernelText(roots.sys / "class/block" / each / "dm/name");
        if (said && *said == name) return findByName(roots, each);
    }
    return std::nullopt;
}

/// The device that a file system without a device number of its own says it was mounted from; the
/// first one of several ("/dev/sda:/dev/sdb").
std::optional<std::string> findSource(const LinuxRoots& roots, const Mount& mount) {
    const std::string source = unescapeMountText(mount.source);
    constexpr std::string_view folder = "/dev/";
    constexpr std::string_view mapped = "mapper/";
    if (!source.starts_with(folder)) return std::nullopt;
    const auto first = source.substr(0, source.find(":/"));
    const std::string name = first.substr(folder.size());
    if (name.starts_with(mapped)) return findMapped(roots, name.substr(mapped.size()));
    return findByName(roots, name);
}

bool isExternalBus(std::string_view path) {
    for (const std::string_view bus : {"/usb", "/firewire", "/fw"}) {
        for (auto at = path.find(bus); at != path.npos; at = path.find(bus, at + 1)) {
            const std::string_view rest = path.substr(at + bus.size());
            const auto isBusEnd = [](char c) { return c == '/' || (c >= '0' && c <= '9'); };
            if (rest.empty() || isBusEnd(rest.front())) return true;
        }
    }
    return false;
}

/// Cards, and disks that are files or belong to other machines.
bool isForeign(const LinuxRoots& roots, const std::string& disk) {
    const std::string_view name = lastComponent(disk);
    if (name.starts_with("loop") || name.starts_with("nbd") || name.starts_with("rbd")) return true;
    if (!name.starts_with("mmcblk")) return false;
    const auto type = readKernelText(roots.sys / disk / "device/type");
    return type && type->starts_with("SD");
}

/// A partition has no word on that; its disk, which its folder lies in, does.
AttributeText readRemovable(const LinuxRoots& roots, std::string& disk) {
    AttributeText said = readAttribute(AT_FDCWD, (roots.sys / disk / "removable").c_str());
    const auto parent = disk.rfind('/');
    if (!said.isGone() || parent == std::string::npos) return said;
    disk.resize(parent);
    return readAttribute(AT_FDCWD, (roots.sys / disk / "removable").c_str());
}

Disk readDisk(const LinuxRoots& roots, std::string disk, int depth) {
    const AttributeText removable = readRemovable(roots, disk);
    if (removable.text != "0" && removable.text != "1") return {};
    Disk answer{true, removable.text == "1"};
    if (depth < deepestStack && disk.starts_with("devices/virtual/block/")) {
        for (const std::string& name : namesIn(roots.sys / disk / "slaves")) {
            const auto link = findByName(roots, name);
            const Disk lower = link ? readDisk(roots, *link, depth + 1) : Disk{};
            if (!lower.isInternal || !lower.isRemovable) return {};
            answer.isInternal = *answer.isInternal && *lower.isInternal;
            answer.isRemovable = *answer.isRemovable || *lower.isRemovable;
        }
    }
    if (*answer.isRemovable || isExternalBus(disk) || isForeign(roots, disk)) {
        answer.isInternal = false;
    }
    return answer;
}

std::optional<std::string> readLabel(const LinuxRoots& roots, const std::string& number) {
    const auto data = readKernelFile(roots.run / "udev/data" / ("b" + number));
    return data ? labelInUdevData(*data) : std::nullopt;
}

}  // namespace

BlockDeviceFacts readBlockDevice(const LinuxRoots& roots, const Mount& mount) {
    std::string number = std::to_string(mount.major) + ":" + std::to_string(mount.minor);
    const fs::path known = roots.sys / "dev/block";
    const auto device =
        mount.major != 0 ? readDeviceLink(known / number) : findSource(roots, mount);
    if (device) {
        if (mount.major == 0) {
            number = readKernelText(roots.sys / *device / "dev").value_or(std::string());
        }
        const Disk disk = readDisk(roots, *device, 0);
        return {readLabel(roots, number), disk.isInternal, disk.isRemovable};
    }
    // A disk that was pulled out while its file system was mounted: it could be.
    const bool wasPulled = mount.major != 0 && !namesIn(known).empty();
    return {mount.major != 0 ? readLabel(roots, number) : std::nullopt, !wasPulled, wasPulled};
}

}  // namespace vantor
