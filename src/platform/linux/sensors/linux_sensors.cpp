#include "platform/linux/sensors/linux_sensors.h"

namespace vantor {

std::optional<double> LinuxSensors::processorTemperature() {
    auto temperature = processors_.hottestPackage();
    if (!temperature) temperature = processors_.hottestCore();
    // As precise as documents have always had it.
    if (temperature) temperature = static_cast<float>(*temperature);
    return temperature;
}

}  // namespace vantor
