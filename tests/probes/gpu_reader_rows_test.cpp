#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "probes/gpu_reader_fixture.h"

/// How devices and services become rows.
namespace vantor::gpu_reader_rows_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const SimulatedAccelerators::RawDictionary half{{"GPU Utilization", 0.5}};
const SimulatedAccelerators::RawDictionary quarter{{"GPU Utilization", 0.25}};

TEST_F(GPUReaderTest, OneDeviceAndOneServiceWithoutIdentifierPairUpByCompatibleNames) {
    addDevice(1, "AMD Radeon Pro 5500M");
    addService({}, "Radeon Pro 5500M", half);
    EXPECT_EQ(onlyRow().utilization, 0.5);
}

TEST_F(GPUReaderTest, OneDeviceAndOneServiceWithClearlyDifferentNamesDoNotPairUp) {
    addDevice(1, "AMD Radeon Pro 5500M");
    addService({}, "Intel Iris", half);
    EXPECT_EQ(onlyRow().utilization, std::nullopt);
}

TEST_F(GPUReaderTest, TwoDevicesWithSimilarNamesNeverMatchByName) {
    addDevice(1, "Radeon");
    addDevice(2, "Radeon Pro");
    addService({}, "Radeon", half);
    addService(2, "Something Else", quarter);
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(std::nullopt, 0.25));
}

TEST_F(GPUReaderTest, AServiceTakenByAnEarlierDeviceIsNotGivenToALaterOne) {
    addDevice(7, "Radeon");
    addDevice(7, "Radeon");
    addService(7, "Radeon", half);
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(0.5, std::nullopt));
    addService(7, "Radeon", quarter);
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(0.5, 0.25));
}

TEST_F(GPUReaderTest, WhatWasTakenIsForgottenAtTheNextRead) {
    addDevice(1, "Radeon");
    addService(1, "Radeon", half);
    EXPECT_EQ(onlyRow().utilization, 0.5);
    EXPECT_EQ(onlyRow().utilization, 0.5);
}

TEST_F(GPUReaderTest, ServicesThatMatchNoDeviceAreNoRows) {
    addDevice(1, "Radeon");
    addService(2, "GeForce", half);
    addService(3, "Iris", half);
    EXPECT_EQ(onlyRow().utilization, std::nullopt);
}

TEST_F(GPUReaderTest, NoDeviceAndTwoServicesWithoutTemperatureHaveNone) {
    addService(1, "A");
    addService(2, "B");
    EXPECT_THAT(each(&GPUStats::temperatureCelsius), ElementsAre(std::nullopt, std::nullopt));
    EXPECT_EQ(temperatureReads, 0);
}

TEST_F(GPUReaderTest, NoDeviceAndOneServiceWithoutTemperatureHasTheChips) {
    addService(1, "A");
    EXPECT_EQ(onlyRow().temperatureCelsius, 47.5);
    EXPECT_FALSE(onlyRow().isUnifiedMemory);
}

TEST_F(GPUReaderTest, NoDeviceAndOneServiceWithATemperatureKeepsIt) {
    addService(1, "A", {{"Temperature", -5}});
    EXPECT_EQ(onlyRow().temperatureCelsius, -5);
    EXPECT_EQ(temperatureReads, 0);
}

TEST_F(GPUReaderTest, ServicesWithoutDevicesAreRowsInTheRegistrysOrder) {
    addService({}, "b", half);
    addService(9, "B", {{"vram used", 1}, {"vram total", 2}, {"Temperature", 30}});
    addService({}, std::nullopt);
    addService(3, "A");
    GPUStats nameless, a, b, fallback;
    nameless.id = "registry-fallback-0";
    nameless.name = "Graphics Device";
    a.id = "registry-3";
    a.name = "A";
    b = {"registry-9", "B", false, {}, 30, 1, 2, {}};
    fallback.id = "registry-fallback-3";
    fallback.name = "b";
    fallback.utilization = 0.5;
    EXPECT_THAT(rows(), ElementsAre(nameless, a, b, fallback));
}

TEST_F(GPUReaderTest, ANameThatCannotBeReadIsThatOfAnyDevice) {
    addService(1, std::nullopt).model = PropertyValue(12);
    EXPECT_EQ(onlyRow().name, "Graphics Device");
}

TEST_F(GPUReaderTest, OnlyUnifiedDevicesHaveTheChipsTemperature) {
    addDevice(1, "Radeon");
    addDevice(2, "Chip").hasUnifiedMemory = true;
    addDevice(3, "Other Chip").hasUnifiedMemory = true;
    addService(3, "Other Chip", {{"Temperature", 33}});
    EXPECT_THAT(each(&GPUStats::temperatureCelsius), ElementsAre(std::nullopt, 47.5, 33));
}

TEST_F(GPUReaderTest, AUnifiedDeviceHasTheChipsTemperatureWhenTheLookupFails) {
    addDevice(2, "Chip").hasUnifiedMemory = true;
    accelerators.lookupFails = true;
    EXPECT_EQ(onlyRow().temperatureCelsius, 47.5);
}

TEST_F(GPUReaderTest, TheChipsTemperatureIsReadOnceAtMost) {
    for (const std::uint64_t id : {1U, 2U, 3U})
        addDevice(id, "Chip").hasUnifiedMemory = true;
    EXPECT_THAT(each(&GPUStats::temperatureCelsius), ElementsAre(47.5, 47.5, 47.5));
    EXPECT_EQ(temperatureReads, 1);
    chipTemperature.reset();
    EXPECT_THAT(each(&GPUStats::temperatureCelsius),
                ElementsAre(std::nullopt, std::nullopt, std::nullopt));
    EXPECT_EQ(temperatureReads, 2);
}

TEST_F(GPUReaderTest, TheChipsTemperatureIsNotReadWhenNobodyNeedsIt) {
    addDevice(1, "Radeon");
    addDevice(2, "Chip").hasUnifiedMemory = true;
    addService(2, "Chip", {{"Temperature", 33}});
    read();
    EXPECT_EQ(temperatureReads, 0);
}

TEST(SimulatedGraphics, TheLaptopsIsFullyKnownButForItsTemperature) {
    const auto rows = GPUReader(SimulatedMachine::laptop()).read();
    ASSERT_TRUE(rows);
    EXPECT_THAT(*rows,
                ElementsAre(GPUStats{
                    "4294968421", "Simulated Graphics", true, 0.12, {}, {}, {}, 10'737'418'240}));
}

TEST(SimulatedGraphics, TheDesktopsTwoAreFullyKnown) {
    const auto rows = GPUReader(SimulatedMachine::desktop()).read();
    ASSERT_TRUE(rows);
    EXPECT_THAT(*rows, ElementsAre(GPUStats{"4294968800", "GeForce Simulated", false, 0.02, 38.5,
                                            268'435'456, 4'294'967'296, 4'294'967'296},
                                   GPUStats{"4294968900", "Radeon Pro Simulated", false, 0.35, 61,
                                            1'610'612'736, 8'589'934'592, 8'589'934'592}));
}

TEST(SimulatedGraphics, TheBrokenMachinesCannotBeLookedUp) {
    EXPECT_EQ(GPUReader(SimulatedMachine::broken()).read(), std::nullopt);
}

}  // namespace
}  // namespace vantor::gpu_reader_rows_test
