#include "sequences/power_sequence.h"

#include <array>
#include <string_view>

namespace vantor {

namespace {

constexpr std::array types{"InternalBattery", "UPS", "Accessory Source"};
constexpr std::array states{"AC Power", "Battery Power", "Off Line", ""};

/// A field that is missing, or one of a kind that says nothing, at random.
void add(Chance& chance, PropertyDictionary& dictionary, std::string_view key,
         const std::optional<std::string>& text) {
    if (text) {
        dictionary.push_back({std::string(key), PropertyValue(*text)});
    } else if (chance.oneIn(2)) {
        dictionary.push_back({std::string(key), PropertyValue(7)});
    }
}

void add(Chance& chance, PropertyDictionary& dictionary, std::string_view key,
         const std::optional<std::int64_t>& number) {
    constexpr std::int64_t exact = std::int64_t{1} << 53;
    if (!number) {
        if (chance.oneIn(3)) dictionary.push_back({std::string(key), PropertyValue(7.5)});
        if (chance.oneIn(3)) dictionary.push_back({std::string(key), PropertyValue("7")});
    } else if (chance.oneIn(4) && *number<exact&& * number> - exact) {
        dictionary.push_back({std::string(key), PropertyValue(static_cast<double>(*number))});
    } else {
        dictionary.push_back({std::string(key), PropertyValue(*number)});
    }
}

}  // namespace

std::optional<std::int64_t> PowerSequence::someNumber() {
    switch (chance_.below(8)) {
        case 0:
            return std::nullopt;
        case 1:
            return -static_cast<std::int64_t>(chance_.below(3));
        case 2:
            return static_cast<std::int64_t>(chance_.ofAnySize(63));
        default:
            return static_cast<std::int64_t>(1 + chance_.below(120));
    }
}

void PowerSequence::changeSource(PowerOracle::Source& source) {
    source.isFetchable = !chance_.oneIn(20);
    source.isDescribed = !chance_.oneIn(12);
    if (chance_.oneIn(4)) source.current = someNumber();
    if (chance_.oneIn(4)) source.maximum = someNumber();
    if (chance_.oneIn(4)) source.minutesToFull = someNumber();
    if (chance_.oneIn(4)) source.minutesToEmpty = someNumber();
    if (chance_.oneIn(4)) source.cycles = someNumber();
    if (chance_.oneIn(4)) source.state = chance_.oneOf(states);
    if (chance_.oneIn(20)) source.state.reset();
    if (chance_.oneIn(4)) source.isCharging = chance_.oneIn(2);
    if (chance_.oneIn(10)) source.isCharging.reset();
    if (chance_.oneIn(10)) source.name.reset();
}

PowerOracle::Source PowerSequence::newSource() {
    PowerOracle::Source source;
    if (!chance_.oneIn(10)) source.type = chance_.oneOf(types);
    source.name = "Source " + std::to_string(chance_.below(100));
    source.state = chance_.oneOf(states);
    source.current = someNumber();
    source.maximum = 100;
    return source;
}

void PowerSequence::tellMachine() {
    power_.sources.clear();
    for (const PowerOracle::Source& source : sources_) {
        auto& told = power_.sources.emplace_back();
        told.isMissing = !source.isFetchable;
        if (!source.isDescribed) continue;
        PropertyDictionary& description = told.description.emplace();
        add(chance_, description, "Type", source.type);
        add(chance_, description, "Name", source.name);
        add(chance_, description, "Power Source State", source.state);
        add(chance_, description, "Current Capacity", source.current);
        add(chance_, description, "Max Capacity", source.maximum);
        add(chance_, description, "Time to Full Charge", source.minutesToFull);
        add(chance_, description, "Time to Empty", source.minutesToEmpty);
        add(chance_, description, "Cycle Count", source.cycles);
        if (source.isCharging) {
            description.push_back({"Is Charging", PropertyValue(*source.isCharging)});
        } else if (chance_.oneIn(2)) {
            description.push_back({"Is Charging", PropertyValue("yes")});
        }
    }
}

std::optional<std::string> PowerSequence::step() {
    if (sources_.size() < 4 && chance_.oneIn(5)) sources_.push_back(newSource());
    if (!sources_.empty() && chance_.oneIn(6)) {
        sources_.erase(sources_.begin() + static_cast<std::ptrdiff_t>(chance_.placeIn(sources_)));
    }
    for (PowerOracle::Source& source : sources_)
        changeSource(source);
    tellMachine();
    power_.infoFails = chance_.oneIn(30);
    power_.listIsMissing = chance_.oneIn(30);
    const PowerReadResult actual = reader_.read();
    if (power_.infosOutstanding() != 0) return "a description was not given back";
    if (power_.infoFails || power_.listIsMissing) return PowerOracle::judge(actual, std::nullopt);
    return PowerOracle::judge(actual, sources_);
}

}  // namespace vantor
