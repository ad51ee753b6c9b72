#include "platform/linux/sensors/linux_temperatures.h"

namespace vantor {

std::optional<double> LinuxTemperatures::processor() {
    auto temperature = sensors_->hottestPackage();
    if (!temperature) temperature = sensors_->hottestCore();
    // As precise as documents have always had it.
    if (temperature) temperature = static_cast<float>(*temperature);
    return temperature;
}

}  // namespace vantor
