#include "platform/simulated/simulated_graphics_devices.h"

namespace vantor {

void SimulatedGraphicsDevices::copyAllDevices(std::vector<Device>& list) {
    if (onCopyAllDevices) onCopyAllDevices();
    ++copies;
    list = devices;
}

}  // namespace vantor
