#include "platform/linux/graphics/card_sensors.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

namespace fs = std::filesystem;

namespace {

constexpr unsigned maxSensors = 8;
constexpr std::array<std::string_view, 3> bestFirst{"edge", "junction", "pkg"};
// Of the memory (one number, or one for each of its channels), its controller and the connection.
constexpr std::array<std::string_view, 4> elsewhere{"mem", "vram", "mctrl", "pcie"};

/// Smaller is better.
std::size_t rankOf(const CardSensorLabel& sensor) {
    const auto found = std::find(bestFirst.begin(), bestFirst.end(), sensor.label);
    return static_cast<std::size_t>(found - bestFirst.begin());
}

bool isOfTheChip(const CardSensorLabel& sensor) {
    return std::none_of(elsewhere.begin(), elsewhere.end(),
                        [&](std::string_view prefix) { return sensor.label.starts_with(prefix); });
}

void look(const fs::path& folder, CardSensors& found) {
    std::error_code error;
    std::vector<CardSensorLabel> sensors;
    for (unsigned number = 1; number <= maxSensors; ++number) {
        const fs::path stem = folder / ("temp" + std::to_string(number));
        if (!fs::exists(stem.native() + "_input", error)) continue;
        auto label = readKernelText(stem.native() + "_label");
        // A label that cannot be read is not the same as none: it may be the memory's.
        if (!label && fs::exists(stem.native() + "_label", error)) continue;
        sensors.push_back({number, std::move(label).value_or("")});
    }
    for (const unsigned number : orderCardSensors(sensors)) {
        SmallFile file(folder / ("temp" + std::to_string(number) + "_input"));
        if (file.isOpen()) found.temperatures.push_back(std::move(file));
    }
    if (readKernelText(folder / "in1_label") == "vddnb") found.isBesideProcessor = true;
}

}  // namespace

std::vector<unsigned> orderCardSensors(std::span<const CardSensorLabel> sensors) {
    std::vector<CardSensorLabel> ordered;
    std::copy_if(sensors.begin(), sensors.end(), std::back_inserter(ordered), isOfTheChip);
    std::stable_sort(ordered.begin(), ordered.end(), [](const auto& one, const auto& other) {
        return rankOf(one) < rankOf(other);
    });
    std::vector<unsigned> numbers;
    for (const CardSensorLabel& sensor : ordered)
        numbers.push_back(sensor.number);
    return numbers;
}

CardSensors CardSensors::find(const fs::path& device) {
    CardSensors found;
    std::error_code error;
    for (fs::directory_iterator at(device / "hwmon", error), end; !error && at != end;
         at.increment(error)) {
        look(at->path(), found);
    }
    return found;
}

}  // namespace vantor
