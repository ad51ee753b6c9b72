#include "platform/linux/graphics/drm_listing.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <system_error>
#include <utility>

namespace vantor {

namespace fs = std::filesystem;

namespace {

/// The names in a folder; none when it is not there, absent when it cannot be listed.
std::optional<std::vector<std::string>> namesIfListed(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator at(folder, error);
    if (error == std::errc::no_such_file_or_directory) return names;
    for (const fs::directory_iterator end; !error && at != end; at.increment(error))
        names.push_back(at->path().filename().native());
    if (error) return std::nullopt;
    std::sort(names.begin(), names.end());
    return names;
}

/// Without links; empty when it leads nowhere.
fs::path folderBehind(const fs::path& link) {
    std::error_code error;
    fs::path folder = fs::canonical(link, error);
    if (error) return {};
    // Some kernels put a device of their own between a virtual card and its place on the bus.
    if (folder.filename().native().starts_with("virtio")) return folder.parent_path();
    return folder;
}

std::optional<DRMDevice> describe(const fs::path& link, const fs::path& sys) {
    std::error_code error;
    DRMDevice device;
    device.folder = folderBehind(link);
    if (device.folder.empty()) return std::nullopt;
    device.name = device.folder.lexically_relative(sys).native();
    device.address = parsePCIAddress(device.folder.filename().native());
    const fs::path driver = fs::read_symlink(device.folder / "driver", error);
    if (!error) device.driver = driver.filename().native();
    return device;
}

bool isRenderNode(std::string_view name) {
    return name.starts_with("renderD");
}

/// Bound devices are links named by their addresses. The driver's other devices are none of ours:
/// it binds to display controllers alone.
void appendUnlisted(const LinuxRoots& roots, const fs::path& sys, std::vector<DRMDevice>& devices) {
    const fs::path folder = roots.sys / "bus/pci/drivers/nvidia";
    std::vector<DRMDevice> unlisted;
    for (const std::string& name : namesIfListed(folder).value_or(std::vector<std::string>{})) {
        if (!parsePCIAddress(name)) continue;
        auto device = describe(folder / name, sys);
        if (!device || !device->address) continue;
        device->driver = "nvidia";
        const bool isListed = std::any_of(devices.begin(), devices.end(), [&](const auto& known) {
            return known.folder == device->folder;
        });
        if (!isListed) unlisted.push_back(*std::move(device));
    }
    std::sort(unlisted.begin(), unlisted.end(), [](const auto& one, const auto& other) {
        return one.address->number() < other.address->number();
    });
    std::move(unlisted.begin(), unlisted.end(), std::back_inserter(devices));
}

}  // namespace

std::uint64_t DRMDevice::registryID() const {
    if (address) return address->number();
    std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a
    for (const char letter : name)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3;
    return hash | std::uint64_t{1} << 63;  // no address
}

std::optional<std::uint32_t> parseCardNumber(std::string_view node) {
    constexpr std::string_view prefix = "card";
    if (!node.starts_with(prefix)) return std::nullopt;
    node.remove_prefix(prefix.size());
    std::uint32_t number = 0;
    const char* const end = node.data() + node.size();
    const auto [rest, error] = std::from_chars(node.data(), end, number);
    if (node.empty() || error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

std::optional<std::vector<DRMDevice>> listDRMDevices(const LinuxRoots& roots) {
    const fs::path folder = roots.sys / "class/drm";
    const auto names = namesIfListed(folder);
    if (!names) return std::nullopt;
    std::error_code error;
    const fs::path sys = fs::canonical(roots.sys, error);
    std::map<std::uint32_t, std::string> cards;
    for (const std::string& name : *names) {
        if (const auto number = parseCardNumber(name)) cards.emplace(*number, name);
    }
    std::vector<DRMDevice> devices;
    const auto findByFolder = [&](const fs::path& place) {
        return std::find_if(devices.begin(), devices.end(),
                            [&](const auto& known) { return known.folder == place; });
    };
    for (const auto& [number, name] : cards) {
        auto device = describe(folder / name / "device", sys);
        if (!device) continue;
        auto known = findByFolder(device->folder);
        if (known == devices.end()) known = devices.insert(known, *std::move(device));
        known->nodes.push_back(name);
    }
    for (const std::string& name : *names) {
        if (!isRenderNode(name)) continue;
        const auto known = findByFolder(folderBehind(folder / name / "device"));
        if (known != devices.end()) {
            known->nodes.push_back(name);
        }
    }
    appendUnlisted(roots, sys, devices);
    return devices;
}

}  // namespace vantor
