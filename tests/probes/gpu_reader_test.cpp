#include "probes/gpu_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "probes/gpu_reader_fixture.h"

namespace vantor::gpu_reader_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GPUReaderTest, NoDevicesAndNoServicesAreAnEmptyList) {
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(GPUReaderTest, NoDevicesAndAFailedLookupAreNoAnswer) {
    accelerators.lookupFails = true;
    EXPECT_EQ(read(), std::nullopt);
}

TEST_F(GPUReaderTest, DevicesAndAFailedLookupAreRowsWithoutFigures) {
    addDevice(1, "Radeon");
    addService(1, "Radeon", {{"Device Utilization %", 12}});
    ASSERT_EQ(onlyRow().utilization, 0.12);
    accelerators.lookupFails = true;
    GPUStats expected;
    expected.id = "1";
    expected.name = "Radeon";
    EXPECT_EQ(onlyRow(), expected);
}

TEST_F(GPUReaderTest, GivesEachFieldAsTheMachineHasIt) {
    GraphicsDevices::Device& device = addDevice(18446744073709551615U, "Radeon");
    device.hasUnifiedMemory = true;
    device.recommendedMaxWorkingSetSize = 5'000'000'000;
    addService(18446744073709551615U, "Another Name",
               {{"Device Utilization %", 12},
                {"Temperature(C)", 61},
                {"vram used", 1000},
                {"vram total", 2000}});
    EXPECT_EQ(onlyRow(), (GPUStats{"18446744073709551615", "Radeon", true, 0.12, 61, 1000, 2000,
                                   5'000'000'000}));
    EXPECT_EQ(temperatureReads, 0);
}

TEST_F(GPUReaderTest, AWorkingSetOfZeroIsAbsent) {
    addDevice(1, "Radeon").recommendedMaxWorkingSetSize = 0;
    EXPECT_EQ(onlyRow().recommendedWorkingSetBytes, std::nullopt);
}

TEST_F(GPUReaderTest, AMalformedNameIsRepaired) {
    addDevice(1, "Radeon\xFF");
    EXPECT_EQ(onlyRow().name, "Radeon\uFFFD");
}

TEST_F(GPUReaderTest, TheDefaultDeviceIsMovedToTheFront) {
    for (const std::uint64_t id : {1U, 2U, 3U, 4U})
        addDevice(id, "Device");
    graphics.defaultDevice = 3;
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("3", "1", "2", "4"));
}

TEST_F(GPUReaderTest, WithoutADefaultDeviceTheOrderIsTheSystems) {
    for (const std::uint64_t id : {2U, 1U})
        addDevice(id, "Device");
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("2", "1"));
}

TEST_F(GPUReaderTest, ADefaultDeviceThatIsNotListedChangesNothing) {
    for (const std::uint64_t id : {2U, 1U})
        addDevice(id, "Device");
    graphics.defaultDevice = 9;
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("2", "1"));
}

TEST_F(GPUReaderTest, ListsTheDevicesAgainAfterTenSeconds) {
    addDevice(1, "First");
    read();
    addDevice(2, "Second");
    clock->wind(9999ms);
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("1"));
    EXPECT_EQ(graphics.copies, 1);
    clock->wind(1ms);
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("1", "2"));
    EXPECT_EQ(graphics.copies, 2);
    clock->wind(9999ms);
    read();
    EXPECT_EQ(graphics.copies, 2);
}

TEST_F(GPUReaderTest, AnEmptyListOfDevicesIsKeptToo) {
    read();
    addDevice(1, "First");
    clock->wind(9s);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(graphics.copies, 1);
    clock->wind(1s);
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("1"));
}

TEST_F(GPUReaderTest, TheDefaultDeviceIsSoughtWithTheListOnly) {
    addDevice(1, "First");
    addDevice(2, "Second");
    read();
    graphics.defaultDevice = 2;
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("1", "2"));
    clock->wind(10s);
    EXPECT_THAT(each(&GPUStats::id), ElementsAre("2", "1"));
}

TEST_F(GPUReaderTest, AsksTheServicesAtEachRead) {
    addDevice(1, "First");
    addService(1, "First", {{"GPU Utilization", 1}});
    for (const double busy : {0.25, 0.5}) {
        accelerators.services[0].statistics = RawDictionary{{"GPU Utilization", busy}};
        EXPECT_EQ(onlyRow().utilization, busy);
    }
    EXPECT_EQ(accelerators.lookups, 2);
    EXPECT_EQ(graphics.copies, 1);
}

TEST_F(GPUReaderTest, KeepsNoFigureOfAnEarlierServiceOrRead) {
    addDevice(1, "First");
    addDevice(2, "Second");
    addService(1, "First", {{"GPU Utilization", 0.5}, {"Temperature", 50}});
    addService(2, "Second");
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(0.5, std::nullopt));
    accelerators.services.erase(accelerators.services.begin());
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(std::nullopt, std::nullopt));
    accelerators.services.clear();
    EXPECT_THAT(each(&GPUStats::temperatureCelsius), ElementsAre(std::nullopt, std::nullopt));
}

TEST_F(GPUReaderTest, StatisticsWithKeysThatAreNoTextKeepTheOthers) {
    addService(1, "A",
               {{std::nullopt, 99},
                {"Inside", RawDictionary{{std::nullopt, 98}, {"GPU Utilization", 0.5}}}});
    EXPECT_EQ(onlyRow().utilization, 0.5);
}

TEST_F(GPUReaderTest, StatisticsThatAreNoDictionaryAreNone) {
    addService(1, "A").statistics.reset();
    addService(2, "B").otherStatistics = PropertyValue("Device Utilization %");
    accelerators.services[1].statistics.reset();
    EXPECT_THAT(each(&GPUStats::utilization), ElementsAre(std::nullopt, std::nullopt));
}

TEST_F(GPUReaderTest, StatisticsBelowDepthThreeAreNotSeen) {
    RawDictionary statistics{{"GPU Utilization", 0.5}};
    for (int level = 0; level < 3; ++level)
        statistics = RawDictionary{{"Level", statistics}};
    addService(1, "A", statistics);
    EXPECT_EQ(onlyRow().utilization, 0.5);
    accelerators.services[0].statistics = RawDictionary{{"Level", statistics}};
    EXPECT_EQ(onlyRow().utilization, std::nullopt);
}

TEST_F(GPUReaderTest, StatisticsBehindThe512thAreNotSeen) {
    RawDictionary statistics = manyStatistics(511);
    statistics.push_back({"GPU Utilization", 0.5});
    statistics.push_back({"Temperature", 50});
    addService(1, "A", statistics);
    chipTemperature.reset();
    EXPECT_EQ(onlyRow().utilization, 0.5);
    EXPECT_EQ(onlyRow().temperatureCelsius, std::nullopt);
}

TEST_F(GPUReaderTest, ReleasesEveryServiceOfALongList) {
    for (std::uint64_t i = 0; i < 200; ++i)
        addService(i, "Service", nestedStatistics(5));
    EXPECT_EQ(rows().size(), 200u);
}

}  // namespace
}  // namespace vantor::gpu_reader_test
