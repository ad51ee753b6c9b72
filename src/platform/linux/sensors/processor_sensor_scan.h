#pragma once

#include <filesystem>
#include <memory>

#include "platform/linux/sensors/processor_sensors.h"

namespace vantor {

/// Lists the processors' sensors below /sys/class. Opens the names of all monitors but those of
/// graphics cards, the types of all zones, and the labels of the processors' own.
std::shared_ptr<const ProcessorSensorList> scanProcessorSensors(
    const std::filesystem::path& classFolder);

}  // namespace vantor
