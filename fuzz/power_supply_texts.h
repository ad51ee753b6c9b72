#pragma once

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/power/power_supply.h"

namespace vantor::fuzz {

/// Supplies are parted by empty lines; in one, each line is a letter for the file and its text.
inline std::vector<PowerSupplyTexts> powerSuppliesIn(std::string_view text) {
    using Texts = PowerSupplyTexts;
    constexpr std::string_view letters = "tsponeEcCavrdVfmyM";
    Texts::Text Texts::*const files[] = {
        &Texts::type,          &Texts::scope,      &Texts::present,    &Texts::online,
        &Texts::status,        &Texts::energyNow,  &Texts::energyFull, &Texts::chargeNow,
        &Texts::chargeFull,    &Texts::capacity,   &Texts::powerNow,   &Texts::currentNow,
        &Texts::voltageDesign, &Texts::voltageNow, &Texts::timeToFull, &Texts::timeToEmpty,
        &Texts::cycleCount,    &Texts::modelName};
    static_assert(letters.size() == std::size(files));
    std::vector<Texts> supplies(1);
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.empty()) {
            supplies.emplace_back();
            continue;
        }
        const auto file = letters.find(line.front());
        if (file != std::string_view::npos) supplies.back().*files[file] = line.substr(1);
    }
    return supplies;
}

}  // namespace vantor::fuzz
