#include "platform/linux/power/power_supply.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "platform/linux/files/trimmed.h"
#include "platform/linux/power/battery_charge.h"

namespace vantor {

namespace {

using Supplies = std::span<const PowerSupplyTexts>;

constexpr std::int64_t minutesUnknown = -1;
constexpr std::int64_t absurdMinutes = 100 * 60;

bool isFeeding(const PowerSupplyTexts& charger) {
    // 2 is a charger with a programmable supply.
    return charger.online == "1" || charger.online == "2";
}

/// Whether power comes from outside, for a source whose batteries are these.
bool isOnAC(Supplies all, Supplies batteries) {
    bool mainsAreOff = false;
    for (const PowerSupplyTexts& each : all) {
        if (!each.isCharger() || !each.belongsToTheMachine()) continue;
        if (isFeeding(each)) return true;
        // A socket that nothing is plugged into says nothing: the machine may have others.
        if (each.type == "Mains" && each.online == "0") mainsAreOff = true;
    }
    const bool isDischarging = std::any_of(batteries.begin(), batteries.end(),
                                           [](const auto& b) { return b.status == "Discharging"; });
    return !mainsAreOff && !isDischarging;
}

/// `seconds` is what the battery itself says, if it is the only one.
std::int64_t minutesFor(std::int64_t amount, const std::optional<std::int64_t>& ratePerHour,
                        const std::optional<std::int64_t>& seconds) {
    if (seconds && *seconds > 0 && *seconds / 60 <= absurdMinutes) return *seconds / 60;
    if (!ratePerHour || *ratePerHour <= 0) return minutesUnknown;
    const double minutes = 60.0 * static_cast<double>(std::max<std::int64_t>(amount, 0)) /
                           static_cast<double>(*ratePerHour);
    if (!(minutes <= static_cast<double>(absurdMinutes))) return minutesUnknown;
    return static_cast<std::int64_t>(minutes);
}

void describeTimes(PropertyDictionary& description, Supplies batteries,
                   const std::optional<BatteryCharge>& fill, bool isCharging) {
    const bool isAlone = batteries.size() == 1;
    const auto said = [&](const PowerSupplyTexts::Text& text) {
        return isAlone ? parseQuantity(text) : std::nullopt;
    };
    const BatteryCharge known = fill.value_or(BatteryCharge{});
    const std::int64_t toFull =
        minutesFor(known.full - known.now, known.rate, said(batteries.front().timeToFull));
    const std::int64_t toEmpty =
        minutesFor(known.now, known.rate, said(batteries.front().timeToEmpty));
    description.push_back({"Time to Full Charge", isCharging ? toFull : minutesUnknown});
    description.push_back({"Time to Empty", isCharging ? minutesUnknown : toEmpty});
}

constexpr std::string_view attributeBlanks(" \t\r\n\0", 5);

std::string nameOf(Supplies batteries) {
    std::string name;
    for (const PowerSupplyTexts& battery : batteries) {
        const std::string_view model =
            battery.modelName ? trimmed(*battery.modelName, attributeBlanks) : std::string_view{};
        if (!name.empty()) name += " + ";
        name += model.empty() ? std::string_view(battery.folder) : model;
    }
    return name;
}

/// A worn-out battery that says nothing does not stand for the machine beside one that does.
std::vector<PowerSupplyTexts> thoseThatSayHowFull(Supplies batteries) {
    std::vector<PowerSupplyTexts> telling;
    std::copy_if(batteries.begin(), batteries.end(), std::back_inserter(telling), saysHowFull);
    if (telling.empty()) telling.assign(batteries.begin(), batteries.end());
    return telling;
}

PropertyDictionary describe(const char* type, Supplies all, Supplies batteries) {
    const auto telling = thoseThatSayHowFull(batteries);
    PropertyDictionary description;
    description.push_back({"Type", type});
    description.push_back({"Name", nameOf(telling)});
    description.push_back(
        {"Power Source State", isOnAC(all, batteries) ? "AC Power" : "Battery Power"});
    const bool isCharging = std::any_of(batteries.begin(), batteries.end(),
                                        [](const auto& b) { return b.status == "Charging"; });
    description.push_back({"Is Charging", isCharging});
    const auto fill = chargeOf(telling);
    if (fill) {
        description.push_back({"Current Capacity", fill->now});
        description.push_back({"Max Capacity", fill->full});
    }
    describeTimes(description, telling, fill, isCharging);
    std::int64_t cycles = 0;
    for (const PowerSupplyTexts& battery : telling)
        cycles = std::max(cycles, parseQuantity(battery.cycleCount).value_or(0));
    if (cycles > 0) description.push_back({"Cycle Count", cycles});
    return description;
}

}  // namespace

bool PowerSupplyTexts::isCharger() const {
    return type && (*type == "Mains" || type->starts_with("USB") || *type == "BrickID" ||
                    *type == "Wireless");
}

std::vector<std::optional<PropertyDictionary>> describePowerSupplies(Supplies supplies) {
    std::vector<PowerSupplyTexts> batteries;
    for (const PowerSupplyTexts& each : supplies) {
        if (each.isBattery() && each.belongsToTheMachine()) batteries.push_back(each);
    }
    std::vector<std::optional<PropertyDictionary>> sources;
    if (!batteries.empty()) {
        sources.emplace_back(describe("InternalBattery", supplies, batteries));
    }
    for (const PowerSupplyTexts& each : supplies) {
        if (!each.type) {
            sources.emplace_back();
        } else if (each.isUPS() && each.belongsToTheMachine()) {
            sources.emplace_back(describe("UPS", supplies, Supplies(&each, 1)));
        }
    }
    return sources;
}

}  // namespace vantor
