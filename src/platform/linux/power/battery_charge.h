#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/linux/power/power_supply.h"

namespace vantor {

/// How full one battery is, or several together. All in one unit, whatever it is: energy, charge or
/// percent.
struct BatteryCharge {
    std::int64_t now = 0;
    std::int64_t full = 0;
    std::optional<std::int64_t> rate;  ///< per hour, into or out of it; absent = not known

    bool operator==(const BatteryCharge&) const = default;
};

/// A whole number of the kernel's, with a sign or without; absent when it is none, or larger than
/// any battery could have. Pure.
std::optional<std::int64_t> parseQuantity(const PowerSupplyTexts::Text& text);

/// Whether it says its energy now and when full. Pure.
bool saysEnergy(const PowerSupplyTexts& battery);

/// Whether it says how full it is, in whatever way. Pure.
bool saysHowFull(const PowerSupplyTexts& battery);

/// Of those batteries that say how full they are: by energy where all have it, or charge and
/// voltage; else by charge; else by the mean of the percentages. Absent when none of them says.
/// Pure.
std::optional<BatteryCharge> chargeOf(std::span<const PowerSupplyTexts> batteries);

}  // namespace vantor
