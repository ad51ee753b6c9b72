#include "platform/darwin/darwin_sensors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <latch>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/simulated/simulated_macs.h"
#include "support/joined_threads.h"
#include "support/named_row.h"
#include "support/patient_threads.h"

namespace vantor::darwin_sensors_test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

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
    DarwinSensors& chips = machine->sensors();
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
    EXPECT_TRUE(mac.chips.isAppleSilicon());
    EXPECT_EQ(mac.chips.processorTemperature(), GetParam().byController.value_or(58.25));
    EXPECT_EQ(mac.sensors.enumerations(), GetParam().byController ? 0 : 1);
    mac.failAllKeys();
    EXPECT_EQ(mac.chips.processorTemperature(), 58.25);
    EXPECT_EQ(mac.sensors.enumerations(), 1);
}

TEST_P(EachChip, HasItsGraphicsKeysToo) {
    Mac mac(makeAppleSiliconMac(GetParam().chip));
    const auto keys = mac.chips.cachedAppleSiliconGPUKeys();
    EXPECT_EQ(keys.empty(), !GetParam().byController);
    EXPECT_EQ(mac.chips.graphicsTemperature(), GetParam().byController ? 52.75 : 49.5);
    EXPECT_EQ(mac.sensors.enumerations(), GetParam().byController ? 0 : 1);
    mac.failAllKeys();
    EXPECT_EQ(mac.chips.graphicsTemperature(), 49.5);
}

TEST(DarwinSensors, A18OrUnknownChipHasNoKeysAndReliesOnItsSensorsAlone) {
    for (const auto chip : {SimulatedChip::a18, SimulatedChip::unknown}) {
        Mac mac(makeAppleSiliconMac(chip));
        for (const char* key : {"Tp09", "Tp01", "Te05", "Tp00"})
            mac.controller.setFixed(key, 90);
        EXPECT_THAT(mac.chips.cachedAppleSiliconCPUKeys(), IsEmpty());
        EXPECT_THAT(mac.chips.cachedAppleSiliconGPUKeys(), IsEmpty());
        EXPECT_EQ(mac.chips.processorTemperature(), 58.25);
        EXPECT_EQ(mac.controller.connectionsOpened(), 0);
    }
}

TEST(DarwinSensors, OnAnM2WhoseKeysAllFailTheDiesSensorCounts) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m2));
    mac.failAllKeys();
    mac.sensors.services = {{"PMU tdie4", 48.2}, {"NAND CH0 temp", 70}};
    EXPECT_EQ(mac.chips.processorTemperature(), 48.2);
}

TEST(DarwinSensors, ASensorCalledTdevOf12800Is50) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m2));
    mac.failAllKeys();
    mac.sensors.services = {{"PMU tdev2", 12'800}};
    EXPECT_EQ(mac.chips.processorTemperature(), 50.0);
}

TEST(DarwinSensors, WithoutAnySensorThereIsNoTemperature) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m1));
    mac.controller.isPresent = false;
    mac.sensors.services.clear();
    EXPECT_EQ(mac.chips.processorTemperature(), std::nullopt);
    EXPECT_EQ(mac.chips.graphicsTemperature(), std::nullopt);
    for (const auto& machine : {SimulatedMachine::laptop(), SimulatedMachine::broken()}) {
        EXPECT_EQ(machine->sensors().processorTemperature(), std::nullopt);
        EXPECT_EQ(machine->sensors().graphicsTemperature(), std::nullopt);
    }
}

TEST(DarwinSensors, OnIntelOnlyTheControllerIsAsked) {
    Mac mac(makeIntelMac());
    mac.sensors.hasLibrary = true;
    mac.sensors.services = {{"PMU tdie1", 80}, {"GPU MTR Temp Sensor1", 60}};
    mac.controller.setFixed("Tg05", 50);
    EXPECT_FALSE(mac.chips.isAppleSilicon());
    EXPECT_THAT(mac.chips.cachedAppleSiliconCPUKeys(), IsEmpty());
    EXPECT_THAT(mac.chips.cachedAppleSiliconGPUKeys(), IsEmpty());
    EXPECT_EQ(mac.chips.processorTemperature(), 67);
    mac.controller.keys.erase("TC0D");
    EXPECT_EQ(mac.chips.processorTemperature(), 64.5) << "its hottest core";
    for (const char* core : {"TC0C", "TC1C", "TC2C", "TC3C"})
        mac.controller.keys.erase(core);
    EXPECT_EQ(mac.chips.processorTemperature(), 52);
    mac.controller.keys.clear();
    EXPECT_EQ(mac.chips.processorTemperature(), std::nullopt);
    const int connections = mac.controller.connectionsOpened();
    EXPECT_EQ(mac.chips.graphicsTemperature(), std::nullopt);
    EXPECT_EQ(mac.controller.connectionsOpened(), connections);
    EXPECT_EQ(mac.sensors.librariesOpened(), 0);
}

TEST(DarwinSensors, DetectsThePlatformOnceAndNotBeforeItIsAsked) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m1));
    EXPECT_EQ(mac.machine->kernelValues().valueReads("hw.optional.arm64"), 0);
    mac.chips.processorTemperature();
    mac.machine->kernelValues().setText("machdep.cpu.brand_string", "Apple M2");
    mac.chips.processorTemperature();
    EXPECT_EQ(mac.chips.cachedAppleSiliconGPUKeys().size(), 4U);
    EXPECT_EQ(mac.machine->kernelValues().valueReads("hw.optional.arm64"), 1);
    EXPECT_EQ(mac.machine->kernelValues().valueReads("machdep.cpu.brand_string"), 1);
}

/// A machine whose processor and graphics are as hot as the sensors tell that both have in common,
/// and the two that ask for them.
struct SharedSensors {
    explicit SharedSensors(SimulatedChip chip) : mac(makeAppleSiliconMac(chip)) {
        mac.failAllKeys();
    }

    std::optional<double> processor() const { return mac.chips.processorTemperature(); }
    std::optional<double> graphics() const { return mac.chips.graphicsTemperature(); }

    Mac mac;
};

TEST(SharedSensors, AreListedOnceForProcessorAndGraphics) {
    const SharedSensors shared(SimulatedChip::a18);
    EXPECT_EQ(shared.processor(), 58.25);
    EXPECT_EQ(shared.graphics(), 49.5);
    EXPECT_EQ(shared.mac.sensors.enumerations(), 1);
    shared.mac.machine->clock()->wind(1s);
    EXPECT_EQ(shared.graphics(), 49.5);
    EXPECT_EQ(shared.processor(), 58.25);
    EXPECT_EQ(shared.mac.sensors.enumerations(), 2);
}

TEST(SharedSensors, ThatTheProcessorListsArePassedByTheGraphicsAtOnce) {
    SharedSensors shared(SimulatedChip::m2);
    EXPECT_EQ(shared.graphics(), 49.5);
    shared.mac.machine->clock()->wind(1s);
    shared.mac.sensors.services = {{"PMU tdie1", 70}, {"GPU MTR Temp Sensor1", 60}};
    PatientThreads others;
    std::atomic<bool> isAsked = false;
    shared.mac.sensors.onCall = [&] {
        if (isAsked.exchange(true)) return;
        const auto met = others.ask([&] { return shared.graphics(); });
        ASSERT_TRUE(met) << "it waits for the processor's list";
        EXPECT_EQ(*met, 49.5) << "of the list before";
    };
    EXPECT_EQ(shared.processor(), 70);
    EXPECT_TRUE(isAsked);
    EXPECT_EQ(shared.mac.sensors.enumerations(), 2);
    EXPECT_EQ(shared.graphics(), 60);
    EXPECT_EQ(shared.mac.sensors.enumerations(), 2);
    shared.mac.sensors.onCall = nullptr;
}

TEST(SharedSensors, ThatTheGraphicsListArePassedByTheProcessorAtOnce) {
    SharedSensors shared(SimulatedChip::m2);
    EXPECT_EQ(shared.processor(), 58.25);
    shared.mac.machine->clock()->wind(1s);
    shared.mac.sensors.services = {{"PMU tdie1", 70}, {"GPU MTR Temp Sensor1", 60}};
    PatientThreads others;
    std::atomic<bool> isAsked = false;
    shared.mac.sensors.onCall = [&] {
        if (isAsked.exchange(true)) return;
        const auto met = others.ask([&] { return shared.processor(); });
        ASSERT_TRUE(met) << "it waits for the graphics' list";
        EXPECT_EQ(*met, 58.25) << "of the list before";
    };
    EXPECT_EQ(shared.graphics(), 60);
    EXPECT_TRUE(isAsked);
    EXPECT_EQ(shared.mac.sensors.enumerations(), 2);
    shared.mac.sensors.onCall = nullptr;
}

/// Asks for both temperatures from two threads each, and counts the answers that are wrong. The
/// time passes by `step` with each question for the graphics'.
int askAtOnce(const SharedSensors& shared, int rounds, std::chrono::milliseconds step) {
    std::atomic<int> wrong{0};
    std::latch start(4);
    const auto processor = [&] {
        start.arrive_and_wait();
        for (int i = 0; i < rounds; ++i)
            if (shared.processor() != 58.25) ++wrong;
    };
    const auto graphics = [&] {
        start.arrive_and_wait();
        for (int i = 0; i < rounds; ++i) {
            shared.mac.machine->clock()->wind(step);
            if (shared.graphics() != 49.5) ++wrong;
        }
    };
    {
        JoinedThreads threads;
        for (int i = 0; i < 2; ++i) {
            threads.start(processor);
            threads.start(graphics);
        }
    }
    return wrong;
}

TEST(SharedSensors, AreListedFourTimesASecondHoweverManyAskAtOnce) {
    constexpr int rounds = 300;
    for (const auto chip : {SimulatedChip::m3, SimulatedChip::a18}) {
        const SharedSensors shared(chip);
        shared.processor();  // who meets the first load finds no list before it
        EXPECT_EQ(askAtOnce(shared, rounds, 50ms), 0);
        const int listings = shared.mac.sensors.enumerations();
        EXPECT_GT(listings, 1);
        EXPECT_LE(listings, rounds * 2 / 5 + 1);
        EXPECT_EQ(askAtOnce(shared, rounds, 0ms), 0);
        EXPECT_LE(shared.mac.sensors.enumerations(), listings + 1) << "no time has passed";
    }
}

TEST(DarwinSensors, KeysOfProcessorAndGraphicsMayBeAskedForAtOnce) {
    Mac mac(makeAppleSiliconMac(SimulatedChip::m3));
    constexpr int rounds = 300;
    std::atomic<int> wrong{0};
    {
        JoinedThreads threads;
        for (int thread = 0; thread < 2; ++thread) {
            threads.start([&] {
                for (int i = 0; i < rounds; ++i)
                    if (mac.chips.processorTemperature() != 61.5) ++wrong;
            });
            threads.start([&] {
                for (int i = 0; i < rounds; ++i)
                    if (mac.chips.graphicsTemperature() != 52.75) ++wrong;
            });
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(mac.sensors.enumerations(), 0);
}

}  // namespace
}  // namespace vantor::darwin_sensors_test
