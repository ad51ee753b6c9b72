#pragma once

#include <optional>
#include <span>

#include "platform/darwin/hid_temperature_reader.h"

namespace vantor {

/// The value of a sensor as a temperature in degrees Celsius; sensors called "tdev" tell some in
/// 256ths. Absent unless it lies between 0 and 150, both excluded. Pure.
std::optional<double> plausibleTemperature(const HIDTemperatureReader::Reading& reading);

/// Whether that is a sensor of the processor's, or of the graphics processor's. Pure.
bool isCPUSensor(const HIDTemperatureReader::Reading& reading);
bool isGPUSensor(const HIDTemperatureReader::Reading& reading);

/// The hottest of those sensors; absent when none tells a plausible temperature. Pure.
std::optional<double> hottestCPUSensor(std::span<const HIDTemperatureReader::Reading> readings);
std::optional<double> hottestGPUSensor(std::span<const HIDTemperatureReader::Reading> readings);

}  // namespace vantor
