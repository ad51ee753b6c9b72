#include "platform/darwin/hid_sensors.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace vantor {

namespace {

constexpr double hidSensorsHottest = 150;
constexpr double hottestUnscaled = 130;
constexpr double scale = 256;

bool hasPart(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

std::optional<double> hottestOf(std::span<const HIDTemperatureReader::Reading> readings,
                                bool (*counts)(const HIDTemperatureReader::Reading&)) {
    std::optional<double> largest;
    for (const auto& reading : readings) {
        // An absent temperature is below every other.
        if (counts(reading)) largest = std::max(largest, plausibleTemperature(reading));
    }
    return largest;
}

}  // namespace

std::optional<double> plausibleTemperature(const HIDTemperatureReader::Reading& reading) {
    double value = reading.value;
    if (!std::isfinite(value)) return std::nullopt;
    if (value > hottestUnscaled && hasPart(reading.normalizedName, "tdev")) value /= scale;
    if (value <= 0 || value >= hidSensorsHottest) return std::nullopt;
    return value;
}

bool isCPUSensor(const HIDTemperatureReader::Reading& reading) {
    const std::string_view name = reading.normalizedName;
    for (const std::string_view prefix :
         {"pmu tdie", "pmu tdev", "pacc mtr temp", "eacc mtr temp"}) {
        if (name.starts_with(prefix)) return true;
    }
    return (name.starts_with("pmu tp") && name.ends_with("s")) || hasPart(name, "cpu");
}

bool isGPUSensor(const HIDTemperatureReader::Reading& reading) {
    const std::string_view name = reading.normalizedName;
    for (const std::string_view prefix : {"gpu mtr temp sensor", "pmu2 tdie", "pmu2 tdev"}) {
        if (name.starts_with(prefix)) return true;
    }
    return (name.starts_with("pmu tp") && name.ends_with("g")) || hasPart(name, "gpu");
}

std::optional<double> hottestCPUSensor(std::span<const HIDTemperatureReader::Reading> readings) {
    return hottestOf(readings, isCPUSensor);
}

std::optional<double> hottestGPUSensor(std::span<const HIDTemperatureReader::Reading> readings) {
    return hottestOf(readings, isGPUSensor);
}

}  // namespace vantor
