#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "platform/simulated/manual_serial_queue.h"
#include "platform/simulated/simulated_macs.h"
#include "sampling/system_sampler.h"

namespace vantor {
namespace {

using namespace std::chrono_literals;

std::optional<double> temperatureOf(const std::shared_ptr<SimulatedMachine>& machine) {
    ManualSerialQueueFactory queues;
    const auto sampler = SystemSampler::make(machine, queues);
    machine->hostProcessors().growth = {30, 10, 60, 0};
    std::optional<double> temperature;
    for (int i = 0; i < 2; ++i) {  // the first reading is a baseline
        machine->clock()->wind(1s);
        sampler->requestCPU(0.5, true, [&temperature](const CPUStats* stats) {
            if (stats) temperature = stats->temperatureCelsius;
        });
        queues.runWaiting();
    }
    return temperature;
}

TEST(SamplerTemperature, IsPartOfAProcessorReading) {
    EXPECT_EQ(temperatureOf(makeAppleSiliconMac(SimulatedChip::m4)), 61.5);
    EXPECT_EQ(temperatureOf(makeAppleSiliconMac(SimulatedChip::a18)), 58.25);
    EXPECT_EQ(temperatureOf(makeIntelMac()), 67);
}

TEST(SamplerTemperature, IsAbsentWithoutSensors) {
    EXPECT_EQ(temperatureOf(SimulatedMachine::laptop()), std::nullopt);
}

TEST(SamplerTemperature, IsAskedForOncePerReadingThatSucceeds) {
    const auto machine = makeIntelMac();
    temperatureOf(machine);
    EXPECT_EQ(machine->systemController().connectionsOpened(), 1);
}

}  // namespace
}  // namespace vantor
