#include "platform/linux/power/battery_charge.h"

#include "power_supply_texts.h"
#include "require.h"

/// Sums of several batteries stay far from the limits of their type, and are present as soon as one
/// of them publishes its charge.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto batteries = fuzz::powerSuppliesIn(fuzz::textOf(data, size));
    constexpr std::int64_t largest = 1'000'000'000'000;
    const auto charge = chargeOf(batteries);
    const auto count = static_cast<std::int64_t>(batteries.size());
    if (charge) {
        require(charge->now <= count * largest && charge->now >= -count * largest);
        require(charge->full <= count * largest && charge->full >= -count * largest);
        require(!charge->rate || (*charge->rate >= 0 && *charge->rate <= count * largest));
    }
    bool isAnyKnown = false;
    for (const PowerSupplyTexts& battery : batteries) {
        const bool isKnown = saysHowFull(battery);
        require(chargeOf({&battery, 1}).has_value() == isKnown);
        isAnyKnown = isAnyKnown || isKnown;
        const auto percent = parseQuantity(battery.capacity);
        require(!percent || (*percent >= -largest && *percent <= largest));
    }
    require(charge.has_value() == isAnyKnown);
    return 0;
}
