#include "platform/linux/power/battery_charge.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vantor {

namespace {

// A megawatt hour; so sums and percentages of several do not overflow.
constexpr std::int64_t largestQuantity = 1'000'000'000'000;

using Quantity = std::optional<std::int64_t>;

Quantity magnitude(const PowerSupplyTexts::Text& text) {
    const auto value = parseQuantity(text);
    return value ? Quantity(std::abs(*value)) : std::nullopt;
}

/// µAh and µV give µWh, µA and µV give µW.
Quantity times(Quantity amperes, Quantity volts) {
    if (!amperes || !volts) return std::nullopt;
    const double product = static_cast<double>(*amperes) * static_cast<double>(*volts) / 1e6;
    if (std::abs(product) > static_cast<double>(largestQuantity)) return std::nullopt;
    return std::llround(product);
}

Quantity divided(Quantity watts, Quantity volts) {
    if (!watts || !volts) return std::nullopt;
    const double quotient = static_cast<double>(*watts) / static_cast<double>(*volts) * 1e6;
    if (std::abs(quotient) > static_cast<double>(largestQuantity)) return std::nullopt;
    return std::llround(quotient);
}

Quantity positive(const PowerSupplyTexts::Text& text) {
    const auto value = parseQuantity(text);
    return value && *value > 0 ? value : std::nullopt;
}

/// The present voltage falls as a battery empties; the design's does not.
Quantity steadyVoltage(const PowerSupplyTexts& battery) {
    const auto design = positive(battery.voltageDesign);
    return design ? design : positive(battery.voltageNow);
}

Quantity presentVoltage(const PowerSupplyTexts& battery) {
    const auto present = positive(battery.voltageNow);
    return present ? present : positive(battery.voltageDesign);
}

/// Electronics that have lost count say that a full battery holds nothing.
std::optional<BatteryCharge> fillIn(const PowerSupplyTexts::Text& now,
                                    const PowerSupplyTexts::Text& full) {
    const auto present = parseQuantity(now);
    const auto most = positive(full);
    if (!present || *present < 0 || !most) return std::nullopt;
    return BatteryCharge{*present, *most, std::nullopt};
}

std::optional<BatteryCharge> energyIn(const PowerSupplyTexts& battery) {
    auto fill = fillIn(battery.energyNow, battery.energyFull);
    if (!fill) return std::nullopt;
    fill->rate = magnitude(battery.powerNow);
    if (!fill->rate) fill->rate = times(magnitude(battery.currentNow), presentVoltage(battery));
    return fill;
}

std::optional<BatteryCharge> chargeIn(const PowerSupplyTexts& battery) {
    auto fill = fillIn(battery.chargeNow, battery.chargeFull);
    if (!fill) return std::nullopt;
    fill->rate = magnitude(battery.currentNow);
    if (!fill->rate) fill->rate = divided(magnitude(battery.powerNow), presentVoltage(battery));
    return fill;
}

std::optional<BatteryCharge> energyOrConvertedCharge(const PowerSupplyTexts& battery) {
    if (const auto energy = energyIn(battery)) return energy;
    const auto charge = chargeIn(battery);
    if (!charge) return std::nullopt;
    const auto volts = steadyVoltage(battery);
    const auto now = times(charge->now, volts);
    const auto full = times(charge->full, volts);
    if (!now || !full) return std::nullopt;
    return BatteryCharge{*now, *full, times(charge->rate, volts)};
}

std::optional<BatteryCharge> percentIn(const PowerSupplyTexts& battery) {
    constexpr std::int64_t largestPercent = largestQuantity / 100;
    auto percent = parseQuantity(battery.capacity);
    if (!percent || *percent < 0 || *percent > largestPercent) {
        auto fill = energyIn(battery);
        if (!fill) fill = chargeIn(battery);
        if (!fill) return std::nullopt;
        const double share = static_cast<double>(fill->now) / static_cast<double>(fill->full);
        percent = std::min<std::int64_t>(std::llround(100 * share), largestPercent);
    }
    return BatteryCharge{*percent, 100, std::nullopt};
}

/// A battery that is neither filled nor drained need not say how fast.
bool isAtWork(const PowerSupplyTexts& battery) {
    return battery.status == "Charging" || battery.status == "Discharging";
}

/// Absent when one of those that say how full they are does not say it by that measure.
template <class Measure>
std::optional<BatteryCharge> sumOf(std::span<const PowerSupplyTexts> batteries, Measure measure) {
    BatteryCharge sum;
    bool someoneAtWorkIsSilent = false;
    for (const PowerSupplyTexts& battery : batteries) {
        if (!saysHowFull(battery)) continue;
        const auto fill = measure(battery);
        if (!fill) return std::nullopt;
        sum.now += fill->now;
        sum.full += fill->full;
        if (fill->rate) sum.rate = sum.rate.value_or(0) + *fill->rate;
        if (!fill->rate && isAtWork(battery)) someoneAtWorkIsSilent = true;
    }
    if (someoneAtWorkIsSilent) sum.rate.reset();
    return sum;
}

}  // namespace

std::optional<std::int64_t> parseQuantity(const PowerSupplyTexts::Text& text) {
    if (!text) return std::nullopt;
    std::int64_t value = 0;
    const char* const last = text->data() + text->size();
    const auto [end, error] = std::from_chars(text->data(), last, value);
    if (error != std::errc{} || end != last) return std::nullopt;
    if (value > largestQuantity || value < -largestQuantity) return std::nullopt;
    return value;
}

bool saysEnergy(const PowerSupplyTexts& battery) {
    return energyIn(battery).has_value();
}

bool saysHowFull(const PowerSupplyTexts& battery) {
    return percentIn(battery).has_value();
}

std::optional<BatteryCharge> chargeOf(std::span<const PowerSupplyTexts> batteries) {
    const auto telling = std::count_if(batteries.begin(), batteries.end(), saysHowFull);
    if (telling == 0) return std::nullopt;
    if (const auto energy = sumOf(batteries, energyIn)) return energy;
    if (telling > 1) {
        if (const auto energy = sumOf(batteries, energyOrConvertedCharge)) return energy;
    }
    if (const auto charge = sumOf(batteries, chargeIn)) return charge;
    return sumOf(batteries, percentIn);
}

}  // namespace vantor
