#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/graphics/pci_address.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Where one graphics device is found. All of it comes from the names of links, so no file of a
/// sleeping device is opened.
struct DRMDevice {
    std::filesystem::path folder;       ///< of the device itself, without links
    std::string name;                   ///< its path below /sys
    std::optional<PCIAddress> address;  ///< absent when it is on no PCI bus
    std::string driver;                 ///< empty when none is bound
    std::vector<std::string> nodes;     ///< "card0", "renderD128"

    bool operator==(const DRMDevice&) const = default;

    /// Stable as long as the device stays in its place; never 0 but for 0000:00:00.0.
    std::uint64_t registryID() const;
};

/// The number of a card's node: 10 for "card10"; absent for its connectors ("card0-HDMI-A-1") and
/// for anything else. Pure.
std::optional<std::uint32_t> parseCardNumber(std::string_view node);

/// The graphics devices of /sys/class/drm by the numbers of their cards, each once; behind them
/// those that NVIDIA's driver has without having told the kernel's graphics subsystem. None when
/// there are no such folders; absent when they cannot be listed.
std::optional<std::vector<DRMDevice>> listDRMDevices(const LinuxRoots& roots);

}  // namespace vantor
