#include "platform/simulated/simulated_graphics_devices.h"

namespace vantor {

void SimulatedGraphicsDevices::copyAllDevices(std::vector<Device>& devices) {
    devices.clear();
}

std::optional<std::uint64_t> SimulatedGraphicsDevices::systemDefaultDevice() {
    return std::nullopt;
}

}  // namespace vantor
