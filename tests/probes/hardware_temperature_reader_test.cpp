#include "probes/hardware_temperature_reader.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/simulated/simulated_macs.h"

namespace vantor::hardware_temperature_reader_test {
namespace {

TEST(HardwareTemperatureReader, OfSeveralReadersTheSensorsAreListedOnce) {
    const auto machine = makeAppleSiliconMac(SimulatedChip::a18);
    const HardwareTemperatureReader ofProcessor(machine);
    const HardwareTemperatureReader ofGraphics(machine);
    EXPECT_EQ(ofProcessor.cpuTemperature(), 58.25);
    EXPECT_EQ(ofGraphics.gpuTemperature(), 49.5);
    EXPECT_EQ(machine->hidEventSystem().enumerations(), 1);
}

TEST(HardwareTemperatureReader, KeepsTheMachineThatItAsks) {
    auto machine = makeAppleSiliconMac(SimulatedChip::m1);
    const std::weak_ptr<Machine> watch = machine;
    {
        const HardwareTemperatureReader reader(machine);
        machine.reset();
        EXPECT_FALSE(watch.expired());
        EXPECT_EQ(reader.gpuTemperature(), 52.75);
    }
    EXPECT_TRUE(watch.expired());
}

}  // namespace
}  // namespace vantor::hardware_temperature_reader_test
