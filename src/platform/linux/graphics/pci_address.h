#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// Where a device is on the PCI buses of a machine.
struct PCIAddress {
    std::uint32_t domain = 0;
    std::uint8_t bus = 0;
    std::uint8_t device = 0;    ///< below 32
    std::uint8_t function = 0;  ///< below 8

    bool operator==(const PCIAddress&) const = default;

    /// One number for each address, below 2^48.
    std::uint64_t number() const;

    /// As the kernel names the device's folder: "0000:01:00.0".
    std::string text() const;
};

/// The address that a text is, such as "0000:01:00.0"; absent when it is anything else. Domains
/// behind a controller of their own have more than four digits. Pure.
std::optional<PCIAddress> parsePCIAddress(std::string_view text);

/// Vendor and device in a /proc/bus/pci/devices text.
struct PCIDeviceNumbers {
    std::uint16_t vendor = 0;
    std::uint16_t device = 0;

    bool operator==(const PCIDeviceNumbers&) const = default;
};

/// The numbers of the device at an address. The list does not tell domains: absent when different
/// devices have the same place in different ones, and when nothing is listed there. Pure.
std::optional<PCIDeviceNumbers> findPCIDevice(std::string_view text, const PCIAddress& address);

}  // namespace vantor
