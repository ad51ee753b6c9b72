#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/simulated/simulated_machine.h"

namespace vantor {

/// Gives the machine a graphics device and the accelerator service with its identifier and name.
/// The statistics are the service's.
SimulatedAccelerators::Service& addGraphics(SimulatedMachine& machine, std::uint64_t registryID,
                                            const std::string& name,
                                            SimulatedAccelerators::RawDictionary statistics = {});

/// One device that shares the system's memory, 12 % busy, whose driver tells no temperature.
void addLaptopGraphics(SimulatedMachine& machine);

/// In place of what was there: two devices with memory of their own, 35 % and 2 % busy, of which
/// the second is the default one.
void addDesktopGraphics(SimulatedMachine& machine);

/// A dictionary in a dictionary, `levels` of them below the outermost, under the keys "Level 1",
/// "Level 2" and so on. Each has its number under "Value", and what is no number besides.
SimulatedAccelerators::RawDictionary nestedStatistics(int levels);

/// `count` numbers, from 0 on, under "Counter 0", "Counter 1" and so on; every third of them one
/// level down.
SimulatedAccelerators::RawDictionary manyStatistics(int count);

/// A figure under a name that contains its unit, and its expected value.
struct StatisticWithUnit {
    std::string key;
    double value;
    std::uint64_t bytes;
};

/// The memory that is used, in every spelling of every unit that a driver has for it.
std::vector<StatisticWithUnit> usedMemoryInEveryUnit();

}  // namespace vantor
