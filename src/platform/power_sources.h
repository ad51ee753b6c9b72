#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "platform/property_value.h"

namespace vantor {

/// Batteries and other power sources. One thread at a time.
///
/// macOS: IOPSCopyPowerSourcesInfo, IOPSCopyPowerSourcesList, IOPSGetPowerSourceDescription. Linux:
/// /sys/class/power_supply, described with the same keys.
class PowerSources {
  public:
    /// What was found at one moment.
    class Info {
      public:
        virtual ~Info() = default;

        /// How many sources the list holds; absent when there is no list.
        virtual std::optional<std::size_t> count() const = 0;

        /// Whether that entry of the list can be fetched.
        virtual bool hasSource(std::size_t index) const = 0;

        /// Null when the source has no description; lives as long as this.
        ///
        /// "Type" ("InternalBattery", "UPS"), "Name", "Power Source State" ("AC Power", "Battery
        /// Power"): texts. "Current Capacity", "Max Capacity", "Time to Full Charge", "Time to
        /// Empty" (minutes, negative while unknown), "Cycle Count": integers. "Is Charging": a
        /// boolean.
        virtual const PropertyDictionary* description(std::size_t index) const = 0;
    };

    virtual ~PowerSources() = default;

    /// Null when the sources cannot be read.
    virtual std::unique_ptr<Info> copyInfo() = 0;
};

}  // namespace vantor
