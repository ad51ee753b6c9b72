#pragma once

#include <memory>

#include "platform/simulated/simulated_machine.h"

namespace vantor {

enum class SimulatedChip { m1, m2, m3, m4, m5, a18, unknown };

/// The laptop with a chip of that family: its brand, some of the controller's keys of that family
/// (in both number formats), and the sensors that the event system lists. The processor is at
/// 61.5 degrees Celsius by the controller and at 58.25 by the event system; the graphics at 52.75
/// and 49.5. The controllers of the last two families know no key that anyone asks for.
std::shared_ptr<SimulatedMachine> makeAppleSiliconMac(
    SimulatedChip chip, std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

/// A desktop with an older processor, whose controller knows its die (67 degrees Celsius), four
/// cores and what is near it, and which has no event system's sensors.
std::shared_ptr<SimulatedMachine> makeIntelMac(
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>());

}  // namespace vantor
