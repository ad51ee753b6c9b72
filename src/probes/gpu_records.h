#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vantor {

/// What is kept of a graphics device between refreshes of the device list.
struct MetalDeviceMetadata {
    std::string id;  ///< the registry identifier in decimal
    std::uint64_t registryEntryID = 0;
    std::string name;
    std::string normalizedName;
    bool isUnifiedMemory = false;
    std::optional<std::uint64_t> recommendedWorkingSetBytes;

    bool operator==(const MetalDeviceMetadata&) const = default;
};

/// The properties of one accelerator service of the registry.
struct RegistryStats {
    std::optional<std::uint64_t> registryEntryID;
    std::optional<double> utilization;       ///< busy fraction 0 to 1
    std::optional<double> temperature;       ///< degrees Celsius
    std::optional<std::uint64_t> vramUsed;   ///< bytes
    std::optional<std::uint64_t> vramTotal;  ///< bytes
    std::optional<std::string> name;
    std::string normalizedName;  ///< empty without a name

    bool operator==(const RegistryStats&) const = default;
};

}  // namespace vantor
