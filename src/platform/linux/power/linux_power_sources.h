#pragma once

#include <utility>

#include "platform/linux/linux_roots.h"
#include "platform/power_sources.h"

namespace vantor {

/// The batteries of /sys/class/power_supply.
class LinuxPowerSources : public PowerSources {
  public:
    explicit LinuxPowerSources(LinuxRoots roots) : roots_(std::move(roots)) {}

    std::unique_ptr<Info> copyInfo() override;

  private:
    LinuxRoots roots_;
};

}  // namespace vantor
