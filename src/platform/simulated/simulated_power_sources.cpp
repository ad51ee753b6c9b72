#include "platform/simulated/simulated_power_sources.h"

namespace vantor {

std::unique_ptr<PowerSources::Info> SimulatedPowerSources::copyInfo() {
    return nullptr;
}

}  // namespace vantor
