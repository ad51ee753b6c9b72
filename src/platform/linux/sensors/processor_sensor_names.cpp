#include "platform/linux/sensors/processor_sensor_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <system_error>

namespace vantor {

namespace {

using Part = ProcessorSensorRole::Part;

std::optional<unsigned> parseNumber(std::string_view text) {
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

std::optional<ProcessorSensorRole> numbered(std::string_view label, std::string_view prefix,
                                            Part part) {
    if (!label.starts_with(prefix)) return std::nullopt;
    const auto number = parseNumber(label.substr(prefix.size()));
    if (!number) return std::nullopt;
    return ProcessorSensorRole{part, part == Part::core ? *number : 0};
}

constexpr std::array<std::string_view, 6> processorZonePrefixes{
    "cpu", "bigcore", "big-core", "littlecore", "little-core", "cluster"};

bool isAMDMonitor(std::string_view driver) {
    return driver == "k10temp" || driver == "zenpower";
}

}  // namespace

bool isProcessorMonitor(std::string_view driver) {
    return driver == "coretemp" || driver == "via_cputemp" || isAMDMonitor(driver);
}

std::optional<ProcessorSensorRole> processorSensorRole(std::string_view driver,
                                                       std::string_view label) {
    if (driver == "coretemp") {
        if (const auto package = numbered(label, "Package id ", Part::package)) return package;
        return numbered(label, "Core ", Part::core);
    }
    if (driver == "via_cputemp") return numbered(label, "Core ", Part::core);
    if (!isAMDMonitor(driver)) return std::nullopt;
    if (label == "Tdie") return ProcessorSensorRole{Part::package, 0};
    // Without a label where the chip has but one sensor and the kernel is old.
    if (label == "Tctl" || label.empty()) return ProcessorSensorRole{Part::control, 0};
    return numbered(label, "Tccd", Part::core);
}

bool isProcessorZone(std::string_view type) {
    if (type == "x86_pkg_temp") return true;
    std::string name(type);
    std::replace(name.begin(), name.end(), '_', '-');
    if (name == "soc-thermal" || name == "package-thermal") return true;
    if (!name.ends_with("-thermal")) return false;
    const auto begins = [&name](std::string_view prefix) { return name.starts_with(prefix); };
    return std::any_of(processorZonePrefixes.begin(), processorZonePrefixes.end(), begins);
}

std::optional<unsigned> temperatureInputNumber(std::string_view fileName) {
    constexpr std::string_view prefix = "temp";
    constexpr std::string_view suffix = "_input";
    if (!fileName.starts_with(prefix) || !fileName.ends_with(suffix)) return std::nullopt;
    if (fileName.size() < prefix.size() + suffix.size()) return std::nullopt;
    fileName.remove_prefix(prefix.size());
    fileName.remove_suffix(suffix.size());
    return parseNumber(fileName);
}

}  // namespace vantor
