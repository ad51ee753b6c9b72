#pragma once

#include <cstdint>
#include <optional>

namespace vantor {

/// What a graphics device does at one moment.
struct GraphicsFigures {
    std::optional<double> utilization;         ///< percent, 0 to 100
    std::optional<double> temperature;         ///< degrees Celsius
    std::optional<std::uint64_t> memoryUsed;   ///< bytes
    std::optional<std::uint64_t> memoryTotal;  ///< bytes

    bool operator==(const GraphicsFigures&) const = default;
};

}  // namespace vantor
