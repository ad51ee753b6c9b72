#include "probes/gpu_temperature.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/simulated/simulated_macs.h"

namespace vantor::gpu_temperature_test {
namespace {

TEST(GPUTemperatureSources, AreSilentByDefault) {
    EXPECT_EQ(GPUTemperatureSources{}.hardware(), std::nullopt);
}

TEST(GPUTemperatureSources, AskTheSensorsThatTheProcessorAsks) {
    const auto machine = makeAppleSiliconMac(SimulatedChip::a18);
    const auto sensors = std::make_shared<HardwareTemperatureReader>(machine);
    const auto sources = GPUTemperatureSources::of(sensors);
    EXPECT_EQ(sensors->cpuTemperature(), 58.25);
    EXPECT_EQ(sources.hardware(), 49.5);
    EXPECT_EQ(machine->hidEventSystem().enumerations(), 1);
}

TEST(GPUTemperatureSources, KeepTheMachineThatTheyAsk) {
    auto machine = makeAppleSiliconMac(SimulatedChip::m1);
    const std::weak_ptr<Machine> watch = machine;
    {
        const auto sources =
            GPUTemperatureSources::of(std::make_shared<HardwareTemperatureReader>(machine));
        machine.reset();
        EXPECT_FALSE(watch.expired());
        EXPECT_EQ(sources.hardware(), 52.75);
    }
    EXPECT_TRUE(watch.expired());
}

}  // namespace
}  // namespace vantor::gpu_temperature_test
