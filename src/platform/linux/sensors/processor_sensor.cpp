#include "platform/linux/sensors/processor_sensor.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/linux/sensors/thermal_zones.h"

namespace vantor {

namespace {

// Thousandths of a degree. Beyond them are the numbers of broken sensors, which must not pass for
// the hottest one.
constexpr std::int64_t processorSensorColdest = -20'000;
constexpr std::int64_t processorSensorHottest = 150'000;

std::optional<SmallFile> openIfAny(const std::filesystem::path& path) {
    return path.empty() ? std::nullopt : std::optional<SmallFile>(std::in_place, path);
}

bool says(const std::optional<SmallFile>& file, std::string_view text) {
    std::array<char, 32> buffer{};
    return file && file->readText(buffer) == text;
}

}  // namespace

const ProcessorSensor::Files& ProcessorSensor::files() const {
    std::call_once(opening_, [this] {
        files_.emplace(
            Files{SmallFile(paths_.input), openIfAny(paths_.fault), openIfAny(paths_.enable)});
    });
    return *files_;
}

std::optional<double> ProcessorSensor::read() const {
    const Files& open = files();
    if (says(open.fault, "1") || says(open.enable, "0")) return std::nullopt;
    std::array<char, 32> buffer{};
    const auto text = open.input.read(buffer);
    const auto temperature = text ? parseTemperature(*text) : std::nullopt;
    if (!temperature || *temperature <= processorSensorColdest ||
        *temperature >= processorSensorHottest)
        return std::nullopt;
    return static_cast<double>(*temperature) / 1000;
}

}  // namespace vantor
