#include "platform/linux/block_device.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/linux/attribute_file.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/udev_data.h"

namespace vantor {

namespace {

namespace fs = std::filesystem;

struct Disk {
    std::optional<bool> isInternal;
    std::optional<bool> isRemovable;
};

/// The library's paths are taken apart when joined, which costs more than the kernel's answer.
std::string joined(const fs::path& folder, std::initializer_list<std::string_view> rest) {
    std::string path = folder.native();
    for (const std::string_view part : rest)
        path.append(1, '/').append(part);
    return path;
}

/// Where a link of sysfs leads, from the root of sysfs on: "devices/pci0000:00/…/sda/sda1".
std::optional<std::string> readDeviceLink(const std::string& link) {
    std::array<char, 4096> buffer;
    const ssize_t length = ::readlink(link.c_str(), buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) == buffer.size()) return std::nullopt;
    std::string_view target(buffer.data(), static_cast<std::size_t>(length));
    while (target.starts_with("../"))
        target.remove_prefix(3);
    return std::string(target);
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
    return readDeviceLink(joined(roots.sys, {"class/block", name}));
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
    AttributeText said = readAttribute(AT_FDCWD, joined(roots.sys, {disk, "removable"}).c_str());
    const auto parent = disk.rfind('/');
    if (!said.isGone() || parent == std::string::npos) return said;
    disk.resize(parent);
    return readAttribute(AT_FDCWD, joined(roots.sys, {disk, "removable"}).c_str());
}

/// By itself, whatever it lies on. `disk` becomes the whole one where it was a partition.
Disk readOne(const LinuxRoots& roots, std::string& disk) {
    const AttributeText removable = readRemovable(roots, disk);
    if (removable.text != "0" && removable.text != "1") return {};
    const bool isRemovable = removable.text == "1";
    return {!isRemovable && !isExternalBus(disk) && !isForeign(roots, disk), isRemovable};
}

Disk readStack(const LinuxRoots& roots, const std::string& device) {
    Disk answer{true, false};
    // Those of a large stack share what they lie on: each is asked once.
    std::vector<std::string> stack{device};
    for (std::size_t i = 0; i < stack.size(); ++i) {
        std::string disk = stack[i];
        const Disk each = readOne(roots, disk);
        if (!each.isInternal || !each.isRemovable) return {};
        answer.isInternal = *answer.isInternal && *each.isInternal;
        answer.isRemovable = *answer.isRemovable || *each.isRemovable;
        if (!disk.starts_with("devices/virtual/block/")) continue;
        for (const std::string& name : namesIn(roots.sys / disk / "slaves")) {
            auto lower = findByName(roots, name);
            if (!lower) return {};
            if (std::find(stack.begin(), stack.end(), *lower) == stack.end()) {
                stack.push_back(std::move(*lower));
            }
        }
    }
    return answer;
}

std::optional<std::string> readLabel(const LinuxRoots& roots, const std::string& number) {
    const auto data = readKernelFile(joined(roots.run, {"udev/data", "b" + number}));
    return data ? labelInUdevData(*data) : std::nullopt;
}

}  // namespace

BlockDeviceFacts readBlockDevice(const LinuxRoots& roots, const Mount& mount) {
    std::string number = std::to_string(mount.major) + ":" + std::to_string(mount.minor);
    const std::string known = joined(roots.sys, {"dev/block"});
    const auto device =
        mount.major != 0 ? readDeviceLink(joined(known, {number})) : findSource(roots, mount);
    if (device) {
        if (mount.major == 0) {
            number = readKernelText(roots.sys / *device / "dev").value_or(std::string());
        }
        const Disk disk = readStack(roots, *device);
        return {readLabel(roots, number), disk.isInternal, disk.isRemovable};
    }
    // A disk that was pulled out while its file system was mounted: it could be.
    const bool wasPulled = mount.major != 0 && !namesIn(known).empty();
    return {mount.major != 0 ? readLabel(roots, number) : std::nullopt, !wasPulled, wasPulled};
}

}  // namespace vantor
