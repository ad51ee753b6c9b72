#include "platform/linux/graphics/graphics_names.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/files/kernel_file.h"
#include "platform/linux/graphics/amdgpu_ids.h"
#include "platform/linux/graphics/pci_ids.h"

namespace vantor {

namespace {

constexpr std::uint16_t amd = 0x1002;
constexpr std::size_t graphicsNamesLongestName = 256;

constexpr std::array<std::pair<std::uint16_t, std::string_view>, 8> knownVendors{{
    {amd, "AMD"},
    {0x102B, "Matrox"},
    {0x10DE, "NVIDIA"},
    {0x1234, "QEMU"},
    {0x15AD, "VMware"},
    {0x1A03, "ASPEED"},
    {0x1AF4, "Red Hat"},
    {0x8086, "Intel"},
}};

/// What stands between the last brackets; all of it when there are none.
std::string_view inBrackets(std::string_view text) {
    const auto close = text.rfind(']');
    if (close == std::string_view::npos || close + 1 != text.size()) return text;
    const auto open = text.rfind('[', close);
    if (open == std::string_view::npos || open + 1 == close) return text;
    return text.substr(open + 1, close - open - 1);
}

std::string_view shortVendor(std::uint16_t vendor, std::string_view listed) {
    for (const auto& [number, name] : knownVendors) {
        if (number == vendor) return name;
    }
    return inBrackets(listed);
}

std::string hex(std::uint16_t number) {
    std::array<char, 8> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "0x%04x", number);
    return buffer.data();
}

std::string withVendor(std::string_view vendor, std::string_view name) {
    if (vendor.empty()) return std::string(name);
    std::string front = std::string(vendor) + ' ';
    return name.starts_with(front) ? std::string(name) : front.append(name);
}

std::string anyName(const GraphicsIdentity& identity, const ListedNames& listed) {
    if (identity.vendor && identity.device) {
        const std::string_view vendor = shortVendor(*identity.vendor, listed.pciVendor);
        // "ATI" in names of before the merger stands for itself.
        if (!listed.amdgpu.empty()) {
            return listed.amdgpu.starts_with("ATI ") ? listed.amdgpu
                                                     : withVendor(vendor, listed.amdgpu);
        }
        if (!listed.pciDevice.empty()) return withVendor(vendor, inBrackets(listed.pciDevice));
        if (vendor.empty()) return "PCI " + hex(*identity.vendor) + " " + hex(*identity.device);
        return std::string(vendor) + ' ' + hex(*identity.device);
    }
    if (!identity.compatible.empty()) return identity.compatible;
    return identity.driver;
}

}  // namespace

std::string graphicsName(const GraphicsIdentity& identity, const ListedNames& listed) {
    std::string name = anyName(identity, listed).substr(0, graphicsNamesLongestName);
    std::erase_if(name, [](unsigned char letter) { return letter < 0x20 || letter == 0x7F; });
    const auto last = name.find_last_not_of(' ');
    name.erase(last == std::string::npos ? 0 : last + 1);
    return name.empty() ? "Graphics Device" : name;
}

void GraphicsNames::searchPCI(const GraphicsIdentity& identity, ListedNames& listed) const {
    for (const char* const place : {"share/misc/pci.ids", "share/hwdata/pci.ids"}) {
        const FileDescriptor file{
            ::open((usr_ / place).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
        if (!file) continue;
        PCIIDsSearch search(*identity.vendor, *identity.device);
        std::vector<char> buffer(std::size_t{64} * 1024);
        while (!search.isOver()) {
            const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) break;
            search.feed({buffer.data(), static_cast<std::size_t>(count)});
        }
        listed.pciVendor = search.vendorName();
        listed.pciDevice = search.deviceName();
        if (!listed.pciDevice.empty()) return;
    }
}

std::string GraphicsNames::find(const GraphicsIdentity& identity) const {
    ListedNames listed;
    if (identity.vendor && identity.device) {
        if (*identity.vendor == amd) {
            const auto text = readKernelFile(usr_ / "share/libdrm/amdgpu.ids");
            listed.amdgpu =
                (text ? findAMDGPUName(*text, *identity.device, identity.revision) : std::nullopt)
                    .value_or("");
        }
        if (listed.amdgpu.empty()) searchPCI(identity, listed);
    }
    return graphicsName(identity, listed);
}

}  // namespace vantor
