#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/linux/linux_roots.h"

namespace vantor {

/// What tells the model of a graphics device, as far as it is known.
struct GraphicsIdentity {
    std::optional<std::uint16_t> vendor;
    std::optional<std::uint16_t> device;
    std::optional<std::uint8_t> revision;
    std::string driver;      ///< of the kernel; empty when none is bound
    std::string compatible;  ///< the first text of a device tree's, "brcm,2711-v3d"; else empty

    bool operator==(const GraphicsIdentity&) const = default;
};

/// What lists of PCI devices call it; empty where they do not know it.
struct ListedNames {
    std::string pciVendor;
    std::string pciDevice;
    std::string amdgpu;
};

/// The name that people know a device by: "NVIDIA GeForce RTX 3070" for what a list calls "GA104
/// [GeForce RTX 3070]". Without lists "AMD 0x73bf"; without numbers the device tree's or the
/// driver's word; never empty, and never with control characters. Pure.
std::string graphicsName(const GraphicsIdentity& identity, const ListedNames& listed);

/// Names from the lists that distributions install: amdgpu.ids of libdrm, and pci.ids.
class GraphicsNames {
  public:
    explicit GraphicsNames(const LinuxRoots& roots) : usr_(roots.usr) {}

    /// Reads the lists anew: to be asked once for each device.
    std::string find(const GraphicsIdentity& identity) const;

  private:
    void searchPCI(const GraphicsIdentity& identity, ListedNames& listed) const;

    std::filesystem::path usr_;
};

}  // namespace vantor
