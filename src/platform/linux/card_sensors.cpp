#include "platform/linux/card_sensors.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/linux/kernel_file.h"

namespace vantor {

namespace fs = std::filesystem;

namespace {

constexpr unsigned mostSensors = 8;

void look(const fs::path& folder, CardSensors& found) {
    std::error_code error;
    std::vector<CardSensorLabel> sensors;
    for (unsigned number = 1; number <= mostSensors; ++number) {
        const std::string name = "temp" + std::to_string(number);
        if (!fs::exists(folder / (name + "_input"), error)) continue;
        sensors.push_back({number, readKernelText(folder / (name + "_label")).value_or("")});
    }
    if (const auto number = chooseCardSensor(sensors)) {
        SmallFile file(folder / ("temp" + std::to_string(*number) + "_input"));
        if (file.isOpen()) found.temperature = std::move(file);
    }
    if (readKernelText(folder / "in1_label") == "vddnb") found.isBesideProcessor = true;
}

}  // namespace

std::optional<unsigned> chooseCardSensor(std::span<const CardSensorLabel> sensors) {
    for (const std::string_view wanted : {"edge", "junction", "pkg"}) {
        const auto found = std::find_if(sensors.begin(), sensors.end(),
                                        [&](const auto& each) { return each.label == wanted; });
        if (found != sensors.end()) return found->number;
    }
    const auto first = std::find_if(sensors.begin(), sensors.end(), [](const auto& each) {
        return each.label != "mem" && each.label != "vram";
    });
    if (first == sensors.end()) return std::nullopt;
    return first->number;
}

CardSensors CardSensors::find(const fs::path& device) {
    CardSensors found;
    std::error_code error;
    for (fs::directory_iterator at(device / "hwmon", error), end; !error && at != end;
         at.increment(error)) {
        if (!found.temperature) look(at->path(), found);
    }
    return found;
}

}  // namespace vantor
