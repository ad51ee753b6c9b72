#pragma once

#include <memory>

#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"
#include "platform/power_sources.h"

namespace vantor {

/// IOPSCopyPowerSourcesInfo, IOPSCopyPowerSourcesList, IOPSGetPowerSourceDescription. Everything is
/// copied out of the system's objects at once, and these are given back.
class MacPowerSources : public PowerSources {
  public:
    explicit MacPowerSources(std::shared_ptr<const Frameworks> frameworks);

    std::unique_ptr<Info> copyInfo() override;

  private:
    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    bool canAsk_;
};

}  // namespace vantor
