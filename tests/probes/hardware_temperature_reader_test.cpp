#include "probes/hardware_temperature_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/simulated/simulated_macs.h"
#include "sampling/named_row.h"

namespace vantor {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;
using testing::SizeIs;

struct Mac {
    explicit Mac(std::shared_ptr<SimulatedMachine> made) : machine(std::move(made)) {}
    Mac(const Mac&) = delete;
    Mac& operator=(const Mac&) = delete;
    ~Mac() {
        EXPECT_EQ(controller.servicesOutstanding(), 0);
        EXPECT_EQ(controller.connectionsOutstanding(), 0);
        EXPECT_EQ(controller.improperCalls(), 0);
        EXPECT_EQ(sensors.clientsOutstanding(), 0);
        EXPECT_EQ(sensors.servicesOutstanding(), 0);
        EXPECT_EQ(sensors.eventsOutstanding(), 0);
        EXPECT_EQ(sensors.improperCalls(), 0);
    }

    void failAllKeys() const {
        for (auto& [name, key] : controller.keys)
            key.readBytesFault.result = 0x84;
    }

    std::shared_ptr<SimulatedMachine> machine;
    SimulatedSystemController& controller = machine->systemController();
    SimulatedHIDEventSystem& sensors = machine->hidEventSystem();
    HardwareTemperatureReader reader{machine};
};

struct ChipRow : NamedRow {
    SimulatedChip chip;
    std::optional<double> byController;
};

class EachChip : public testing::TestWithParam<ChipRow> {};

INSTANTIATE_TEST_SUITE_P(Chips, EachChip,
                         testing::Values(ChipRow{{"M1"}, SimulatedChip::m1, 61.5},
                                         ChipRow{{"M2"}, SimulatedChip::m2, 61.5},
                                         ChipRow{{"M3"}, SimulatedChip::m3, 61.5},
                                         ChipRow{{"M4"}, SimulatedChip::m4, 61.5},
                                         ChipRow{{"M5"}, SimulatedChip::m5, 61.5},
                                         ChipRow{{"A18"}, SimulatedChip::a18, std::nullopt},
                                         ChipRow{
                                             {"Unknown"}, SimulatedChip::unknown, std::nullopt}),
                         rowName<ChipRow>);

TEST_P(EachChip, IsAskedByItsControllersKeysAndThenByItsSensors) {
    Mac mac(makeAppleSiliconMac(GetParam().chip));
    EXPECT_TRUE(mac.reader.isAppleSilicon());
    EXPECT_EQ(mac.reader.cpuTemperature(), GetParam().byController.value_or(58.25));
    EXPECT_EQ(mac.sensors.enumerations(), GetParam().byController ? 0 : 1);
    mac.failAllKeys();
    EXPECT_EQ(mac.reader.cpuTemperature(), 58.25);
    EXPECT_EQ(mac.sensors.enumerations(), 1);
}

TEST_P(EachChip, HasItsGraphicsKeysToo) {
    Mac mac(makeAppleSiliconMac(GetParam().chip));
    const auto keys = mac.reader.cachedAppleSiliconGPUKeys();
    EXPECT_EQ(keys.empty(), !GetParam().byController);
    EXPECT_EQ(mac.reader.smc().readHottest(keys),
              GetParam().byController ? std::optional(52.75) : std::nullopt);
    EXPECT_THAT(*mac.reader.hid().readings(), SizeIs(mac.sensors.services.size()));
}

TEST(HardwareTemperatureReader, A18OrUnknownChipHasNoKeysAndReliesOnItsSensorsAlone) {
    for (const auto chip : {SimulatedChip::a18, SimulatedChip::unknown}) {
        Mac mac(makeAppleSiliconMac(chip));
        for (const char* key : {"Tp09", "Tp01", "Te05", "Tp00"})
            mac.controller.setFixed(key, 90);
        EXPECT_THAT(mac.reader.cachedAppleSiliconCPUKeys(), IsEmpty());
        EXPECT_THAT(mac.reader.cachedAppleSiliconGPUKeys(), IsEmpty());
        EXPECT_EQ(mac.reader.cpuTemperature(), 58.25);
        EXPECT_EQ(mac.controller.connectionsOpened(), 0);
    }
}

TEST(HardwareTemperatureReader, OnAnM2WhoseKeysAllFailTheDiesSensorCounts) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m2));
    mac.failAllKeys();
    mac.sensors.services = {{"PMU tdie4", 48.2}, {"NAND CH0 temp", 70}};
    EXPECT_EQ(mac.reader.cpuTemperature(), 48.2);
}

TEST(HardwareTemperatureReader, ASensorCalledTdevOf12800Is50) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m2));
    mac.failAllKeys();
    mac.sensors.services = {{"PMU tdev2", 12'800}};
    EXPECT_EQ(mac.reader.cpuTemperature(), 50.0);
}

TEST(HardwareTemperatureReader, WithoutAnySensorThereIsNoTemperature) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m1));
    mac.controller.isPresent = false;
    mac.sensors.services.clear();
    EXPECT_EQ(mac.reader.cpuTemperature(), std::nullopt);
    EXPECT_EQ(HardwareTemperatureReader(SimulatedMachine::laptop()).cpuTemperature(), std::nullopt);
    EXPECT_EQ(HardwareTemperatureReader(SimulatedMachine::broken()).cpuTemperature(), std::nullopt);
}

TEST(HardwareTemperatureReader, OnIntelOnlyTheControllerIsAsked) {
    Mac mac(makeIntelMac());
    mac.sensors.hasLibrary = true;
    mac.sensors.services = {{"PMU tdie1", 80}};
    EXPECT_FALSE(mac.reader.isAppleSilicon());
    EXPECT_THAT(mac.reader.cachedAppleSiliconCPUKeys(), IsEmpty());
    EXPECT_THAT(mac.reader.cachedAppleSiliconGPUKeys(), IsEmpty());
    EXPECT_EQ(mac.reader.cpuTemperature(), 67);
    mac.controller.keys.erase("TC0D");
    EXPECT_EQ(mac.reader.cpuTemperature(), 64.5) << "its hottest core";
    for (const char* core : {"TC0C", "TC1C", "TC2C", "TC3C"})
        mac.controller.keys.erase(core);
    EXPECT_EQ(mac.reader.cpuTemperature(), 52);
    mac.controller.keys.clear();
    EXPECT_EQ(mac.reader.cpuTemperature(), std::nullopt);
    EXPECT_EQ(mac.sensors.librariesOpened(), 0);
}

TEST(HardwareTemperatureReader, DetectsThePlatformOnceAndNotBeforeItIsAsked) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m1));
    EXPECT_EQ(mac.machine->kernelValues().valueReads("hw.optional.arm64"), 0);
    mac.reader.cpuTemperature();
    mac.machine->kernelValues().setText("machdep.cpu.brand_string", "Apple M2");
    mac.reader.cpuTemperature();
    EXPECT_EQ(mac.reader.cachedAppleSiliconGPUKeys().size(), 4U);
    EXPECT_EQ(mac.machine->kernelValues().valueReads("hw.optional.arm64"), 1);
    EXPECT_EQ(mac.machine->kernelValues().valueReads("machdep.cpu.brand_string"), 1);
}

TEST(HardwareTemperatureReader, TwoReadersShareOneEnumerationOfTheSensors) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::a18));
    mac.reader.cpuTemperature();
    mac.reader.hid().readings();
    EXPECT_EQ(mac.sensors.enumerations(), 1);
}

TEST(HardwareTemperatureReader, ProcessorAndGraphicsMayBeAskedForAtOnce) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m3));
    constexpr int rounds = 300;
    std::atomic<int> wrong{0};
    const auto processor = [&] {
        for (int i = 0; i < rounds; ++i)
            if (mac.reader.cpuTemperature() != 61.5) ++wrong;
    };
    const auto graphics = [&] {
        for (int i = 0; i < rounds; ++i) {
            mac.machine->clock()->wind(50ms);
            const auto keys = mac.reader.cachedAppleSiliconGPUKeys();
            if (mac.reader.smc().readHottest(keys) != 52.75) ++wrong;
            const auto readings = mac.reader.hid().readings();
            // Empty only while the other thread loads the first list.
            if (!readings->empty() && readings->size() != mac.sensors.services.size()) ++wrong;
        }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 2; ++i) {
            threads.emplace_back(processor);
            threads.emplace_back(graphics);
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(mac.sensors.enumerations(), 1);
    EXPECT_LE(mac.sensors.enumerations(), rounds * 2 / 5 + 1) << "at most four times a second";
}

}  // namespace
}  // namespace vantor
