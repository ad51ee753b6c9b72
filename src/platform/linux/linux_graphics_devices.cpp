#include "platform/linux/linux_graphics_devices.h"

namespace vantor {

void LinuxGraphicsDevices::copyAllDevices(std::vector<Device>& devices) {
    devices.clear();
}

std::optional<std::uint64_t> LinuxGraphicsDevices::systemDefaultDevice() {
    return std::nullopt;
}

}  // namespace vantor
