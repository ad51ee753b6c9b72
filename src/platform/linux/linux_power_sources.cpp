#include "platform/linux/linux_power_sources.h"

namespace vantor {

std::unique_ptr<PowerSources::Info> LinuxPowerSources::copyInfo() {
    return nullptr;
}

}  // namespace vantor
