#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/fake_serial_queue.h"
#include "platform/simulated/simulated_macs.h"
#include "sampling/system_sampler.h"
#include "support/named_row.h"

namespace vantor::sampler_temperature_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

std::optional<double> temperatureOf(const std::shared_ptr<SimulatedMachine>& machine) {
    FakeSerialQueueFactory queues;
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

class GraphicsOf {
  public:
    explicit GraphicsOf(std::shared_ptr<SimulatedMachine> machine) : machine_(std::move(machine)) {}

    /// Of each device, in the order of the reading.
    std::vector<std::optional<double>> temperatures() {
        machine_->clock()->wind(1s);
        std::vector<std::optional<double>> all;
        sampler_->requestGPUs(0.5, true, [&all](const std::optional<std::vector<GPUStats>>& gpus) {
            ASSERT_TRUE(gpus);
            for (const GPUStats& gpu : *gpus)
                all.push_back(gpu.temperatureCelsius);
        });
        queues_.runWaiting();
        return all;
    }

  private:
    std::shared_ptr<SimulatedMachine> machine_;
    FakeSerialQueueFactory queues_;
    std::shared_ptr<SystemSampler> sampler_ = SystemSampler::make(machine_, queues_);
};

constexpr double byGraphicsKeys = 52.75;
constexpr double byGraphicsSensors = 49.5;

struct ChipRow : NamedRow {
    SimulatedChip chip;
    bool hasKeys;
};

class GraphicsOfAChip : public testing::TestWithParam<ChipRow> {
  protected:
    std::shared_ptr<SimulatedMachine> machine = makeAppleSiliconMac(GetParam().chip);
    SimulatedSystemController& controller = machine->systemController();
    GraphicsOf graphics{machine};
};

INSTANTIATE_TEST_SUITE_P(Chips, GraphicsOfAChip,
                         testing::Values(ChipRow{{"M1"}, SimulatedChip::m1, true},
                                         ChipRow{{"M2"}, SimulatedChip::m2, true},
                                         ChipRow{{"M3"}, SimulatedChip::m3, true},
                                         ChipRow{{"M4"}, SimulatedChip::m4, true},
                                         ChipRow{{"M5"}, SimulatedChip::m5, true},
                                         ChipRow{{"A18"}, SimulatedChip::a18, false},
                                         ChipRow{{"Unknown"}, SimulatedChip::unknown, false}),
                         rowName<ChipRow>);

TEST_P(GraphicsOfAChip, AreAsHotAsTheirKeysTellElseAsTheirSensors) {
    const double expected = GetParam().hasKeys ? byGraphicsKeys : byGraphicsSensors;
    EXPECT_THAT(graphics.temperatures(), ElementsAre(expected));
    EXPECT_EQ(machine->hidEventSystem().enumerations(), GetParam().hasKeys ? 0 : 1);
    EXPECT_EQ(controller.connectionsOpened(), GetParam().hasKeys ? 1 : 0);
}

TEST_P(GraphicsOfAChip, AskForNoKeyThatTheProcessorAsksFor) {
    graphics.temperatures();
    std::set<std::string> ofGraphics;
    for (const auto& call : controller.calls())
        ofGraphics.insert(call.key);
    controller.forgetCalls();
    EXPECT_EQ(ofGraphics.empty(), !GetParam().hasKeys);
    machine->sensors().processorTemperature();
    for (const auto& call : controller.calls())
        EXPECT_FALSE(ofGraphics.contains(call.key)) << call.key;
}

TEST_P(GraphicsOfAChip, AreAsHotAsTheirSensorsTellWhenAllKeysFail) {
    for (auto& [name, key] : controller.keys)
        key.readBytesFault.result = 0x84;
    EXPECT_THAT(graphics.temperatures(), ElementsAre(byGraphicsSensors));
}

TEST_P(GraphicsOfAChip, HaveNoTemperatureWhenSensorsAreThoseOfOthers) {
    controller.isPresent = false;
    machine->hidEventSystem().services = {{"PMU tdie1", 55.5}, {"NAND CH0 temp", 34}};
    EXPECT_THAT(graphics.temperatures(), ElementsAre(std::nullopt));
}

TEST(SamplerGraphicsTemperature, IsTheDriversOwnWhereItTellsOne) {
    const auto machine = makeAppleSiliconMac(SimulatedChip::m1);
    machine->accelerators().services.at(0).statistics =
        SimulatedAccelerators::RawDictionary{{"Temperature(C)", 71.0}};
    EXPECT_THAT(GraphicsOf(machine).temperatures(), ElementsAre(71.0));
    EXPECT_EQ(machine->systemController().connectionsOpened(), 0);
}

TEST(SamplerGraphicsTemperature, IsAbsentWithoutAppleSiliconWhoseSensorsAreNotAsked) {
    for (const auto& machine : {makeIntelMac(), SimulatedMachine::laptop()}) {
        for (auto& device : machine->graphicsDevices().devices)
            device.hasUnifiedMemory = true;
        for (auto& service : machine->accelerators().services)
            service.statistics.reset();
        machine->hidEventSystem().hasLibrary = true;
        machine->hidEventSystem().services = {{"GPU MTR Temp Sensor1", 48.5}};
        for (const auto& temperature : GraphicsOf(machine).temperatures())
            EXPECT_EQ(temperature, std::nullopt);
        EXPECT_EQ(machine->hidEventSystem().librariesOpened(), 0);
        EXPECT_EQ(machine->systemController().connectionsOpened(), 0);
    }
}

TEST(SamplerGraphicsTemperature, SharesOneListOfSensorsWithTheProcessors) {
    const auto machine = makeAppleSiliconMac(SimulatedChip::a18);
    FakeSerialQueueFactory queues;
    const auto sampler = SystemSampler::make(machine, queues);
    machine->hostProcessors().growth = {30, 10, 60, 0};
    std::optional<double> processor;
    std::optional<double> graphics;
    for (int reading = 1; reading <= 3; ++reading) {  // of the processor, the first is a baseline
        machine->clock()->wind(1s);
        sampler->requestCPU(0.5, true, [&](const CPUStats* stats) {
            if (stats) processor = stats->temperatureCelsius;
        });
        sampler->requestGPUs(0.5, true, [&](const std::optional<std::vector<GPUStats>>& gpus) {
            graphics = gpus.value().at(0).temperatureCelsius;
        });
        queues.runWaiting();
        EXPECT_EQ(machine->hidEventSystem().enumerations(), reading);
    }
    EXPECT_EQ(processor, 58.25);
    EXPECT_EQ(graphics, byGraphicsSensors);
}

}  // namespace
}  // namespace vantor::sampler_temperature_test
