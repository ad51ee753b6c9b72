#include "platform/linux/sensors/processor_sensor_scan.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/sensors/processor_sensor_names.h"

namespace vantor {

namespace {

using Path = std::filesystem::path;
using Part = ProcessorSensorRole::Part;

struct FoundSensor {
    ProcessorSensorRole role;
    unsigned number = 0;
    std::string label;
};

/// The entries of a folder whose names begin with `prefix`, in a steady order.
std::vector<Path> entriesOf(const Path& folder, std::string_view prefix) {
    std::vector<Path> entries;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error)) {
        if (at->path().filename().native().starts_with(prefix)) entries.push_back(at->path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool isThere(const Path& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

/// Tells by folders alone, so that nothing of a card that sleeps is opened.
bool isOfGraphicsCard(const Path& monitor) {
    return isThere(monitor / "device/drm");
}

std::vector<FoundSensor> sensorsOf(const Path& monitor, const std::string& driver) {
    std::vector<FoundSensor> found;
    for (const Path& entry : entriesOf(monitor, "temp")) {
        const auto number = temperatureInputNumber(entry.filename().native());
        if (!number) continue;
        const Path labelFile = monitor / ("temp" + std::to_string(*number) + "_label");
        auto label = readKernelText(labelFile);
        // A label that cannot be read is not the same as none.
        if (!label && isThere(labelFile)) continue;
        const auto role = processorSensorRole(driver, label.value_or(""));
        if (role) found.push_back({*role, *number, std::move(label).value_or("")});
    }
    // The die's own sensor makes the one for the fans superfluous, and that one may lie.
    const auto isOf = [](Part part) {
        return [part](const FoundSensor& sensor) { return sensor.role.part == part; };
    };
    if (std::any_of(found.begin(), found.end(), isOf(Part::package))) {
        std::erase_if(found, isOf(Part::control));
    }
    return found;
}

void addMonitor(ProcessorSensorList& list, const Path& monitor, const std::string& driver) {
    for (FoundSensor& found : sensorsOf(monitor, driver)) {
        const std::string stem = "temp" + std::to_string(found.number);
        const auto pathIfAny = [&](const char* suffix) {
            Path path = monitor / (stem + suffix);
            return isThere(path) ? path : Path();
        };
        std::string name = found.label.empty() ? driver : driver + ' ' + found.label;
        const ProcessorSensor& sensor = list.sensors.emplace_back(
            std::move(name), ProcessorSensor::Paths{monitor / (stem + "_input"),
                                                    pathIfAny("_fault"), pathIfAny("_enable")});
        const bool isCore = found.role.part == Part::core;
        (isCore ? list.cores : list.packages).push_back(&sensor);
    }
}

}  // namespace

std::shared_ptr<const ProcessorSensorList> scanProcessorSensors(const Path& classFolder) {
    auto list = std::make_shared<ProcessorSensorList>();
    for (const Path& monitor : entriesOf(classFolder / "hwmon", "hwmon")) {
        if (isOfGraphicsCard(monitor)) continue;
        const auto driver = readKernelText(monitor / "name");
        if (driver && isProcessorMonitor(*driver)) addMonitor(*list, monitor, *driver);
    }
    const bool areStandIns = !list->packages.empty();
    auto& sensors = areStandIns ? list->standIns : list->sensors;
    auto& group = areStandIns ? list->zones : list->packages;
    for (const Path& zone : entriesOf(classFolder / "thermal", "thermal_zone")) {
        const auto type = readKernelText(zone / "type");
        if (!type || !isProcessorZone(*type)) continue;
        group.push_back(
            &sensors.emplace_back(*type, ProcessorSensor::Paths{zone / "temp", {}, {}}));
    }
    return list;
}

}  // namespace vantor
