#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "model/field.h"

namespace vantor {

/// One graphics device, identified by its id.
struct GPUStats {
    std::string id;  ///< stable for the device; the record's identity
    std::string name;
    bool isUnifiedMemory = false;       ///< shares the system's memory
    std::optional<double> utilization;  ///< busy fraction 0 to 1
    std::optional<double> temperatureCelsius;
    std::optional<std::uint64_t> vramUsedBytes;
    std::optional<std::uint64_t> vramTotalBytes;
    std::optional<std::uint64_t> recommendedWorkingSetBytes;

    bool operator==(const GPUStats&) const = default;

    /// Identifies this row across refreshes; equality compares everything.
    const std::string& identity() const { return id; }
};

template <>
inline constexpr auto fieldsOf<GPUStats> =
    std::tuple{Field{"id", &GPUStats::id},
               Field{"name", &GPUStats::name},
               Field{"isUnifiedMemory", &GPUStats::isUnifiedMemory},
               Field{"utilization", &GPUStats::utilization},
               Field{"temperatureCelsius", &GPUStats::temperatureCelsius},
               Field{"vramUsedBytes", &GPUStats::vramUsedBytes},
               Field{"vramTotalBytes", &GPUStats::vramTotalBytes},
               Field{"recommendedWorkingSetBytes", &GPUStats::recommendedWorkingSetBytes}};

}  // namespace vantor
