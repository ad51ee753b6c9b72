#include "platform/linux/storage/block_device.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/linux/files/attribute_file.h"
#include "platform/linux/files/kernel_file.h"
#include "platform/linux/graphics/pci_address.h"
#include "platform/linux/storage/udev_data.h"

namespace vantor {

namespace {

namespace fs = std::filesystem;

/// A device by its place, and the link of sysfs that led to it.
struct NamedDevice {
    std::string link;
    std::string place;
};

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

/// The same by a link within the folder of another device.
std::optional<std::string> readNeighbour(const LinuxRoots& roots, const fs::path& folder,
                                         const std::string& name) {
    std::error_code error;
    const fs::path target = fs::read_symlink(roots.sys / folder / name, error);
    if (error) return std::nullopt;
    return (folder / target).lexically_normal().string();
}

bool mayNotBeSeen(const std::string& link) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(link, error);
    return !fs::status_known(status) && error == std::errc::permission_denied;
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

std::optional<NamedDevice> findByLink(std::string link) {
    auto place = readDeviceLink(link);
    if (!place) return std::nullopt;
    return NamedDevice{std::move(link), std::move(*place)};
}

/// The device under a name such as "sda2"; "cciss/c0d0" has an exclamation mark in sysfs.
std::optional<NamedDevice> findByName(const LinuxRoots& roots, std::string name) {
    std::replace(name.begin(), name.end(), '/', '!');
    return findByLink(joined(roots.sys, {"class/block", name}));
}

/// The device that the device mapper calls by that name: the folder /dev/mapper has links only.
std::optional<NamedDevice> findMapped(const LinuxRoots& roots, std::string_view name) {
    for (const std::string& each : namesIn(roots.sys / "class/block")) {
        if (!each.starts_with("dm-")) continue;
        const auto said = readKernelText(roots.sys / "class/block" / each / "dm/name");
        if (said && *said == name) return findByName(roots, each);
    }
    return std::nullopt;
}

/// The device that a file system without a device number of its own says it was mounted from; the
/// first one of several ("/dev/sda:/dev/sdb").
std::optional<NamedDevice> findSource(const LinuxRoots& roots, const Mount& mount) {
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

/// Whether a text is a word with a number behind it.
bool isNumbered(std::string_view text, std::string_view word) {
    if (!text.starts_with(word) || text.size() == word.size()) return false;
    return text.find_first_not_of("0123456789", word.size()) == text.npos;
}

/// A disk of another machine, or one behind a port for cables: the kernel says so of what is behind
/// the port, with bridges of its own in between.
bool isElsewhere(const LinuxRoots& roots, std::string_view path) {
    for (std::size_t end = 0; end != path.npos;) {
        const std::size_t start = end == 0 ? 0 : end + 1;
        end = path.find('/', start);
        const std::string_view name = path.substr(start, end - start);
        if (isNumbered(name, "session") || name == "nvme-fabrics") return true;
        if (!parsePCIAddress(name)) continue;
        const std::string file = joined(roots.sys, {path.substr(0, end), "removable"});
        if (readAttribute(AT_FDCWD, file.c_str()).text == "removable") return true;
    }
    return false;
}

/// A disk of NVMe with several ways to it is in the folder that has a link for each way.
bool leadsElsewhere(const LinuxRoots& roots, const std::string& disk) {
    constexpr std::string_view subsystems = "devices/virtual/nvme-subsystem/";
    if (!disk.starts_with(subsystems)) return false;
    const fs::path folder = disk.substr(0, disk.find('/', subsystems.size()));
    for (const std::string& name : namesIn(roots.sys / folder)) {
        if (!isNumbered(name, "nvme")) continue;
        const auto way = readNeighbour(roots, folder, name);
        if (way && isElsewhere(roots, *way)) return true;
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

bool isExternal(const LinuxRoots& roots, const std::string& disk) {
    return isExternalBus(disk) || isForeign(roots, disk) || isElsewhere(roots, disk) ||
           leadsElsewhere(roots, disk);
}

bool isForbidden(int error) {
    return error == EACCES || error == EPERM;
}

/// Whether this program is not shown the device, rather than that it was pulled out a moment ago:
/// then its link has gone before its folder.
bool isNotShown(const NamedDevice& device, int error) {
    if (isForbidden(error)) return true;
    return error == ENOENT && readDeviceLink(device.link) == device.place;
}

/// A partition has no word on that; its disk, which its folder lies in, does.
AttributeText readRemovable(const LinuxRoots& roots, std::string& disk) {
    AttributeText said = readAttribute(AT_FDCWD, joined(roots.sys, {disk, "removable"}).c_str());
    const auto parent = disk.rfind('/');
    if (!said.isGone() || parent == std::string::npos) return said;
    disk.resize(parent);
    return readAttribute(AT_FDCWD, joined(roots.sys, {disk, "removable"}).c_str());
}

/// By itself, whatever it lies on. `disk` becomes its place, or the whole one's where it is a
/// partition.
Disk readOne(const LinuxRoots& roots, const NamedDevice& device, std::string& disk) {
    disk = device.place;
    const AttributeText removable = readRemovable(roots, disk);
    if (isNotShown(device, removable.error)) {
        disk = device.place;
        return {!isExternal(roots, disk), false};
    }
    if (removable.text != "0" && removable.text != "1") return {};
    const bool isRemovable = removable.text == "1";
    return {!isRemovable && !isExternal(roots, disk), isRemovable};
}

Disk readStack(const LinuxRoots& roots, const NamedDevice& device) {
    Disk answer{true, false};
    // Those of a large stack share what they lie on: each is asked once.
    std::vector<NamedDevice> stack{device};
    std::string disk;
    for (std::size_t i = 0; i < stack.size(); ++i) {
        const Disk each = readOne(roots, stack[i], disk);
        if (!each.isInternal || !each.isRemovable) return {};
        answer.isInternal = *answer.isInternal && *each.isInternal;
        answer.isRemovable = *answer.isRemovable || *each.isRemovable;
        if (!disk.starts_with("devices/virtual/block/")) continue;
        for (const std::string& name : namesIn(roots.sys / disk / "slaves")) {
            auto lower = findByName(roots, name);
            if (!lower) {
                // This link stays for as long as it is part of the stack.
                const auto place = readNeighbour(roots, disk + "/slaves", name);
                if (!place) return {};
                answer.isInternal = *answer.isInternal && !isExternal(roots, *place);
                continue;
            }
            const auto isSame = [&](const NamedDevice& d) { return d.place == lower->place; };
            if (std::none_of(stack.begin(), stack.end(), isSame))
                stack.push_back(std::move(*lower));
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
    const std::string link = joined(known, {number});
    const auto device = mount.major != 0 ? findByLink(link) : findSource(roots, mount);
    if (device) {
        if (mount.major == 0) {
            number = readKernelText(roots.sys / device->place / "dev").value_or(std::string());
        }
        const Disk disk = readStack(roots, *device);
        return {readLabel(roots, number), disk.isInternal, disk.isRemovable};
    }
    // A disk that was pulled out while its file system was mounted: it could be.
    const bool wasPulled = mount.major != 0 && !namesIn(known).empty() && !mayNotBeSeen(link);
    return {mount.major != 0 ? readLabel(roots, number) : std::nullopt, !wasPulled, wasPulled};
}

}  // namespace vantor
