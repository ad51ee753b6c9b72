#include "platform/linux/power/battery_charge.h"

#include "power_supply_texts.h"
#include "require.h"

/// Sums of several batteries stay far from the end of the numbers, and are known as soon as one of
/// them says how full it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto batteries = fuzz::powerSuppliesIn(fuzz::textOf(data, size));
    constexpr std::int64_t largest = 1'000'000'000'000;
    const auto fill = chargeOf(batteries);
    const auto count = static_cast<std::int64_t>(batteries.size());
    if (fill) {
        require(fill->now <= count * largest && fill->now >= -count * largest);
        require(fill->full <= count * largest && fill->full >= -count * largest);
        require(!fill->rate || (*fill->rate >= 0 && *fill->rate <= count * largest));
    }
    bool doesAnySay = false;
    for (const PowerSupplyTexts& battery : batteries) {
        const bool says = saysHowFull(battery);
        require(chargeOf({&battery, 1}).has_value() == says);
        doesAnySay = doesAnySay || says;
        const auto percent = parseQuantity(battery.capacity);
        require(!percent || (*percent >= -largest && *percent <= largest));
    }
    require(fill.has_value() == doesAnySay);
    return 0;
}
