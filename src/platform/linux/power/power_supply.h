#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/property_value.h"

namespace vantor {

/// What one folder of /sys/class/power_supply says, as it says it
/// (https://docs.kernel.org/power/power_supply_class.html). Absent = it could not be read.
struct PowerSupplyTexts {
    using Text = std::optional<std::string>;

    std::string folder;  ///< its name, e.g. "BAT0"
    Text type;           ///< "Battery", "UPS", "Mains", "USB", …
    Text scope;          ///< "Device": it powers a mouse or a headset
    Text present;        ///< "0": an empty bay
    Text online;         ///< of what feeds the machine: not "0" while it does
    Text status;         ///< "Charging", "Discharging", "Full", "Not charging", "Unknown"
    Text energyNow;      ///< µWh
    Text energyFull;
    Text chargeNow;  ///< µAh
    Text chargeFull;
    Text capacity;       ///< percent
    Text powerNow;       ///< µW; some drivers give the direction by its sign
    Text currentNow;     ///< µA; likewise
    Text voltageDesign;  ///< µV; voltage_min_design
    Text voltageNow;
    Text timeToFull;  ///< seconds
    Text timeToEmpty;
    Text cycleCount;  ///< 0: not known
    Text modelName;

    bool isBattery() const { return type == "Battery"; }
    bool isUPS() const { return type == "UPS"; }
    /// Something that brings power from outside.
    bool isCharger() const;
    /// It powers this machine, or could.
    bool belongsToTheMachine() const { return scope != "Device" && present != "0"; }
};

/// The power sources with the keys of PowerSources::Info. All batteries of the machine together are
/// one, the first, which has the figures of those that say how full they are; each UPS is another.
/// A supply without a type gives a source without a description, for it may be a battery. Pure.
std::vector<std::optional<PropertyDictionary>> describePowerSupplies(
    std::span<const PowerSupplyTexts> supplies);

}  // namespace vantor
