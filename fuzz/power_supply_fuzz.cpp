#include <algorithm>

#include "platform/linux/power/power_supply.h"

#include "power_supply_texts.h"
#include "require.h"

namespace {

using vantor::fuzz::require;

/// Times are unknown or within a hundred hours, and it is said what power the machine is on.
void requireSound(const vantor::PropertyDictionary& source) {
    using namespace vantor;
    const std::string* const type = findText(source, "Type");
    require(type && (*type == "InternalBattery" || *type == "UPS"));
    require(findText(source, "Name") != nullptr);
    const std::string* const state = findText(source, "Power Source State");
    require(state && (*state == "AC Power" || *state == "Battery Power"));
    require(findBoolean(source, "Is Charging").has_value());
    for (const char* key : {"Time to Full Charge", "Time to Empty"}) {
        const auto minutes = findInteger(source, key);
        require(minutes && *minutes >= -1 && *minutes <= 6000);
    }
    const auto cycles = findInteger(source, "Cycle Count");
    require(!cycles || *cycles >= 1);
    require((find(source, "Current Capacity") == nullptr) ==
            (find(source, "Max Capacity") == nullptr));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const auto supplies = fuzz::powerSuppliesIn(fuzz::textOf(data, size));
    const auto sources = describePowerSupplies(supplies);
    require(sources.size() <= supplies.size());
    for (const auto& source : sources) {
        if (source) requireSound(*source);
    }
    const auto unknown = std::count_if(supplies.begin(), supplies.end(),
                                       [](const PowerSupplyTexts& each) { return !each.type; });
    require(std::count(sources.begin(), sources.end(), std::nullopt) == unknown);
    return 0;
}
