#include "probes/power_reader.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "model/utf8.h"

namespace vantor {

namespace {

std::optional<std::int64_t> findCount(const PropertyDictionary& dictionary, std::string_view key) {
    const auto value = findInteger(dictionary, key);
    return value && *value >= 0 ? value : std::nullopt;
}

std::optional<std::int64_t> timeRemaining(const PropertyDictionary& description, bool isOnAC,
                                          bool isCharging) {
    // Negative while the platform is still calculating.
    if (isCharging) return findCount(description, "Time to Full Charge");
    if (isOnAC) return std::nullopt;
    return findCount(description, "Time to Empty");
}

}  // namespace

PowerReadResult PowerReader::read() {
    const auto info = machine_->powerSources().copyInfo();
    if (!info) return PowerReadResult::failure();
    const auto count = info->count();
    if (!count) return PowerReadResult::failure();
    if (*count == 0) return PowerReadResult::update(std::nullopt);
    bool isIncomplete = false;
    std::optional<PowerStats> candidate;
    for (std::size_t i = 0; i < *count; ++i) {
        if (!info->hasSource(i)) return PowerReadResult::failure();
        const PropertyDictionary* const description = info->description(i);
        const std::string* const type = description ? findText(*description, "Type") : nullptr;
        auto record = type ? stats(*description) : std::nullopt;
        if (!record) {
            isIncomplete = true;
            continue;
        }
        if (*type == "InternalBattery") return PowerReadResult::update(std::move(record));
        if (!candidate) candidate = std::move(record);
    }
    if (isIncomplete || !candidate) return PowerReadResult::failure();
    return PowerReadResult::update(std::move(candidate));
}

std::optional<PowerStats> PowerReader::stats(const PropertyDictionary& description) {
    const auto current = findInteger(description, "Current Capacity");
    const auto maximum = findInteger(description, "Max Capacity");
    if (!current || *current < 0 || !maximum || *maximum < 1) return std::nullopt;
    const std::string* const state = findText(description, "Power Source State");
    if (!state) return std::nullopt;
    PowerStats stats;
    const std::string* const name = findText(description, "Name");
    stats.name = name ? repairedUTF8(*name) : "Battery";
    const double fraction = static_cast<double>(*current) / static_cast<double>(*maximum);
    stats.chargeFraction = std::clamp(fraction, 0.0, 1.0);
    stats.isCharging = findBoolean(description, "Is Charging").value_or(false);
    stats.isConnectedToAC = *state == "AC Power";
    stats.timeRemainingMinutes =
        timeRemaining(description, stats.isConnectedToAC, stats.isCharging);
    stats.cycleCount = findCount(description, "Cycle Count");
    return stats;
}

}  // namespace vantor
