#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "model/field.h"

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

template <>
inline constexpr auto fieldsOf<PowerStats> =
    std::tuple{Field{"name", &PowerStats::name},
               Field{"chargeFraction", &PowerStats::chargeFraction},
               Field{"isCharging", &PowerStats::isCharging},
               Field{"isConnectedToAC", &PowerStats::isConnectedToAC},
               Field{"timeRemainingMinutes", &PowerStats::timeRemainingMinutes},
               Field{"cycleCount", &PowerStats::cycleCount}};

}  // namespace vantor
