#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vantor {

/// The battery.
struct PowerStats {
    std::string name;
    double chargeFraction = 0;  ///< 0 to 1
    bool isCharging = false;
    bool isConnectedToAC = false;
    std::optional<std::int64_t> timeRemainingMinutes;  ///< to empty or full; absent while unknown
    std::optional<std::int64_t> cycleCount;            ///< absent when not published

    bool operator==(const PowerStats&) const = default;
};

}  // namespace vantor
