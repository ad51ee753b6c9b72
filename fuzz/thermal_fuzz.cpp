#include "platform/linux/sensors/thermal_zones.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    // One trip point a line, "type temperature", then the zone's temperature.
    ThermalTrips trips;
    std::string_view rest = text;
    for (auto lineEnd = rest.find('\n'); lineEnd != rest.npos; lineEnd = rest.find('\n')) {
        const std::string_view line = rest.substr(0, lineEnd);
        rest.remove_prefix(lineEnd + 1);
        const auto blank = line.find(' ');
        if (blank == line.npos) continue;
        const auto temperature = parseTemperature(line.substr(blank + 1));
        if (temperature) trips.add(line.substr(0, blank), *temperature);
    }
    for (const auto& trip : {trips.passive, trips.hot, trips.critical})
        require(!trip || *trip > 0);
    const auto temperature = parseTemperature(rest);
    if (!temperature) return 0;
    const int state = trips.judge(*temperature);
    require(state >= 0 && state <= 3);
    require(state == 0 || trips.canJudge());
    if (*temperature <= 0) require(state == 0);
    return 0;
}
