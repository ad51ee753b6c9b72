#pragma once

#include <optional>
#include <string_view>

namespace vantor {

/// What a temperature sensor of the processor's measures.
struct ProcessorSensorRole {
    enum class Part {
        package,  ///< the die as a whole
        control,  ///< what the fans are steered by: the die's, on some chips with an offset
        core      ///< a core, or a die with several
    };

    Part part = Part::package;
    unsigned core = 0;  ///< the number that the driver gives it

    bool operator==(const ProcessorSensorRole&) const = default;
};

/// Whether a hwmon driver of that name measures processors and nothing else
/// (https://docs.kernel.org/hwmon/coretemp.html, k10temp.html). Pure.
bool isProcessorMonitor(std::string_view driver);

/// The role of a sensor of that driver by its label, which is empty where it has none; absent for
/// one that is not the processor's, or that is not known to be. Pure.
std::optional<ProcessorSensorRole> processorSensorRole(std::string_view driver,
                                                       std::string_view label);

/// Whether a thermal zone of that type is at the processor. Firmware's own zones ("acpitz") are
/// not: many tell the same number for ever. Pure.
bool isProcessorZone(std::string_view type);

/// The 7 of "temp7_input"; absent for every other name. Pure.
std::optional<unsigned> temperatureInputNumber(std::string_view fileName);

}  // namespace vantor
