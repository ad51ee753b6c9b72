#pragma once

#include "platform/power_sources.h"

namespace vantor {

/// Power sources by script.
class SimulatedPowerSources : public PowerSources {
  public:
    std::unique_ptr<Info> copyInfo() override;
};

}  // namespace vantor
