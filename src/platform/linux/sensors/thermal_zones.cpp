#include "platform/linux/sensors/thermal_zones.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <system_error>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

namespace {

// Sensors that are off or broken tell temperatures that no working machine has.
constexpr std::int64_t thermalZonesColdest = -100'000;
constexpr std::int64_t thermalZonesHottest = 250'000;

ThermalTrips readTrips(const std::filesystem::path& zone) {
    ThermalTrips trips;
    // Numbered without gaps.
    for (int i = 0;; ++i) {
        const std::string name = "trip_point_" + std::to_string(i);
        const auto type = readKernelText(zone / (name + "_type"));
        if (!type) return trips;
        const auto text = readKernelText(zone / (name + "_temp"));
        if (const auto temperature = text ? parseTemperature(*text) : std::nullopt) {
            trips.add(*type, *temperature);
        }
    }
}

}  // namespace

std::optional<std::int64_t> parseTemperature(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.remove_suffix(1);
    std::int64_t temperature = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, temperature);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return temperature;
}

void ThermalTrips::add(std::string_view type, std::int64_t temperature) {
    if (temperature <= 0) return;
    const auto take = [temperature](std::optional<std::int64_t>& trip) {
        trip = std::min(trip.value_or(temperature), temperature);
    };
    if (type == "passive") take(passive);
    if (type == "hot") take(hot);
    if (type == "critical") take(critical);
}

int ThermalTrips::judge(std::int64_t temperature) const {
    if (critical && temperature >= *critical) return 3;
    if (hot && temperature >= *hot) return 2;
    if (passive && temperature >= *passive) return 1;
    return 0;
}

void ThermalZones::list() {
    zones_.clear();
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder_, error), end; !error && at != end;
         at.increment(error)) {
        if (!at->path().filename().native().starts_with("thermal_zone")) continue;
        const ThermalTrips trips = readTrips(at->path());
        SmallFile temperature(at->path() / "temp");
        if (trips.canJudge() && temperature.isOpen()) {
            zones_.push_back({std::move(temperature), trips});
        }
    }
}

std::optional<int> ThermalZones::state(double uptime) {
    if (!listedAt_ || uptime - *listedAt_ >= listingInterval) {
        list();
        listedAt_ = uptime;
    }
    std::optional<int> worst;
    std::array<char, 32> buffer{};
    for (const Zone& zone : zones_) {
        const auto text = zone.temperature.read(buffer);
        const auto temperature = text ? parseTemperature(*text) : std::nullopt;
        if (!temperature || *temperature < thermalZonesColdest ||
            *temperature > thermalZonesHottest)
            continue;
        worst = std::max(worst.value_or(0), zone.trips.judge(*temperature));
    }
    return worst;
}

}  // namespace vantor
