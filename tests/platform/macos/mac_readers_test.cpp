#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/darwin/darwin_primary_interface.h"
#include "platform/darwin/darwin_sensors.h"
#include "platform/darwin/smc_record.h"
#include "platform/macos/frameworks/frameworks_test_support.h"
#include "platform/macos/graphics/mac_accelerators.h"
#include "platform/macos/graphics/mac_graphics_devices.h"
#include "platform/macos/network/mac_dynamic_store.h"
#include "platform/macos/power/mac_power_sources.h"
#include "platform/macos/sensors/mac_hid_event_system.h"
#include "platform/macos/sensors/mac_system_controller.h"
#include "platform/macos/storage/mac_mounted_volumes.h"
#include "platform/simulated/simulated_macs.h"
#include "probes/gpu_reader.h"
#include "probes/network_reader.h"
#include "probes/power_reader.h"
#include "probes/storage_reader.h"

namespace vantor::mac_readers_test {
namespace {

using testing::Optional;

/// What the frameworks answer, answered by them; the rest is simulated.
class FakeMac : public Machine {
  public:
    FakeMac(std::shared_ptr<Machine> rest, const std::shared_ptr<const Frameworks>& frameworks)
        : rest_(std::move(rest)),
          accelerators_(frameworks),
          dynamicStore_(frameworks),
          primaryInterface_(dynamicStore_),
          graphicsDevices_(frameworks),
          hidEventSystem_(frameworks),
          mountedVolumes_(frameworks),
          powerSources_(frameworks),
          systemController_(frameworks),
          sensors_(rest_->kernelValues(), systemController_, hidEventSystem_,
                   rest_->processInfo()) {
        calls_.accelerators = accelerators_;
        calls_.graphicsDevices = graphicsDevices_;
        calls_.mountedVolumes = mountedVolumes_;
        calls_.powerSources = powerSources_;
        calls_.primaryInterface = primaryInterface_;
        calls_.sensors = sensors_;
    }

    const MachineCalls& calls() const override { return calls_; }

  private:
    std::shared_ptr<Machine> rest_;
    MacAccelerators accelerators_;
    MacDynamicStore dynamicStore_;
    DarwinPrimaryInterface primaryInterface_;
    MacGraphicsDevices graphicsDevices_;
    MacHIDEventSystem hidEventSystem_;
    MacMountedVolumes mountedVolumes_;
    MacPowerSources powerSources_;
    MacSystemController systemController_;
    DarwinSensors sensors_;
    MachineCalls calls_{rest_->calls()};
};

/// The program's own readers, over the answers of a Mac's frameworks.
class MacReadersTest : public FakeDarwinTest {
  protected:
    std::shared_ptr<Machine> make(std::shared_ptr<Machine> rest) {
        return std::make_shared<FakeMac>(std::move(rest), darwin.frameworks());
    }
    Ref text(std::string_view ascii) { return objects.text(ascii); }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacReadersTest, ReadsABattery) {
    darwin.powerSources = {
        {false, objects.dictionary({{text("Type"), text("InternalBattery")},
                                    {text("Name"), text("InternalBattery-0")},
                                    {text("Power Source State"), text("AC Power")},
                                    {text("Current Capacity"), objects.integer(80)},
                                    {text("Max Capacity"), objects.integer(100)},
                                    {text("Is Charging"), objects.boolean(true)},
                                    {text("Time to Full Charge"), objects.integer(35)},
                                    {text("Time to Empty"), objects.integer(0)}})}};
    const auto result = PowerReader(make(SimulatedMachine::laptop())).read();
    PowerStats expected;
    expected.name = "InternalBattery-0";
    expected.chargeFraction = 0.8;
    expected.isCharging = true;
    expected.isConnectedToAC = true;
    expected.timeRemainingMinutes = 35;
    EXPECT_EQ(result, PowerReadResult::update(expected));
}

TEST_F(MacReadersTest, TellsADesktopFromAFailure) {
    PowerReader reader(make(SimulatedMachine::laptop()));
    EXPECT_EQ(reader.read(), PowerReadResult::update(std::nullopt));
    darwin.hasPowerInfo = false;
    EXPECT_EQ(reader.read(), PowerReadResult::failure());
}

TEST_F(MacReadersTest, ReadsVolumes) {
    const auto add = [&](std::string_view path, std::string_view name, bool isLocal,
                         bool isInternal) {
        darwin.volumes.push_back({text(path),
                                  text(name),
                                  {{"NSURLVolumeIsLocalKey", objects.boolean(isLocal)},
                                   {"NSURLVolumeIsBrowsableKey", objects.boolean(true)},
                                   {"NSURLVolumeNameKey", text(name)},
                                   {"NSURLVolumeTotalCapacityKey", objects.integer(1000)},
                                   {"NSURLVolumeAvailableCapacityKey", objects.integer(400)},
                                   {"NSURLVolumeIsInternalKey", objects.boolean(isInternal)},
                                   {"NSURLVolumeIsRemovableKey", objects.boolean(!isInternal)},
                                   {"NSURLVolumeIsReadOnlyKey", objects.boolean(false)}},
                                  false});
    };
    add("/Volumes/Stick", "Stick", true, false);
    add("/", "Macintosh HD", true, true);
    add("/Volumes/server", "server", false, false);
    const auto volumes = StorageReader(make(SimulatedMachine::laptop())).read();
    ASSERT_TRUE(volumes);
    ASSERT_EQ(volumes->size(), 2u);
    EXPECT_EQ((*volumes)[0].path, "/");
    EXPECT_EQ((*volumes)[0].name, "Macintosh HD");
    EXPECT_EQ((*volumes)[0].totalBytes, 1000u);
    EXPECT_EQ((*volumes)[0].availableBytes, 400u);
    EXPECT_TRUE((*volumes)[1].isRemovable);
    // Of the server nothing was asked but whether it is one.
    EXPECT_THAT(darwin.askedOfVolumes,
                testing::Not(testing::Contains(testing::HasSubstr("server NSURLVolumeName"))));
}

TEST_F(MacReadersTest, ReadsGraphics) {
    darwin.devices = {objects.instance({{"registryID", std::uint64_t{100}},
                                        {"name", text("Radeon Pro W5700X")},
                                        {"hasUnifiedMemory", false},
                                        {"recommendedMaxWorkingSetSize", std::uint64_t{1} << 34}}),
                      objects.instance({{"registryID", std::uint64_t{200}},
                                        {"name", text("Radeon Pro W6800X")},
                                        {"hasUnifiedMemory", false},
                                        {"recommendedMaxWorkingSetSize", std::uint64_t{0}}})};
    darwin.defaultDevice = 1;
    darwin.accelerators = {
        {100,
         {{"model", objects.data(std::string("AMD Radeon Pro W5700X\0", 22))},
          {"PerformanceStatistics",
           objects.dictionary({{text("Device Utilization %"), objects.integer(35)},
                               {text("Temperature(C)"), objects.integer(61)},
                               {text("VRAM Used,MB"), objects.integer(2)}})}}},
        {200, {{"model", text("AMD Radeon Pro W6800X")}}}};
    const auto rows = GPUReader(make(SimulatedMachine::desktop())).read();
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 2u);
    EXPECT_EQ((*rows)[0].id, "200");
    EXPECT_EQ((*rows)[0].utilization, std::nullopt);
    EXPECT_EQ((*rows)[0].recommendedWorkingSetBytes, std::nullopt);
    EXPECT_EQ((*rows)[1].id, "100");
    EXPECT_EQ((*rows)[1].name, "Radeon Pro W5700X");
    EXPECT_THAT((*rows)[1].utilization, Optional(0.35));
    EXPECT_THAT((*rows)[1].temperatureCelsius, Optional(61.0));
    EXPECT_THAT((*rows)[1].vramUsedBytes, Optional(2'097'152u));
}

TEST_F(MacReadersTest, ReadsThePrimaryInterface) {
    darwin.storeValues["State:/Network/Global/IPv6"] =
        objects.dictionary({{text("PrimaryInterface"), text("utun4")}});
    NetworkReader reader(make(SimulatedMachine::laptop()));
    reader.read(true, 1.0);
    const NetworkStats* const stats = reader.read(true, 2.0);
    ASSERT_TRUE(stats);
    EXPECT_THAT(stats->primaryInterfaceName, Optional(std::string("utun4")));
}

TEST_F(MacReadersTest, ReadsTheControllersTemperature) {
    const auto rest = makeIntelMac();
    darwin.controller = [](std::span<const std::byte> request, std::span<std::byte> response,
                           std::size_t& size) {
        SMCRecord record;
        std::copy(request.begin(), request.end(), record.bytes().begin());
        const bool isKnown = record.key() == fourCC("TC0P");
        record.setResult(isKnown ? 0 : 0x84);
        record.setDataSize(2);
        record.setDataType(*fourCC("sp78"));
        record.value()[0] = std::byte{0x2C};
        record.value()[1] = std::byte{0x80};
        std::copy(record.bytes().begin(), record.bytes().end(), response.begin());
        size = SMCRecord::size;
        return 0;
    };
    EXPECT_THAT(make(rest)->sensors().processorTemperature(), Optional(44.5));
}

TEST_F(MacReadersTest, ReadsTheEventSystemsTemperature) {
    darwin.sensors = {{text("gas gauge battery"), 30.0},
                      {text("PMU tdie1"), 48.25},
                      {text("PMU tdie2"), 48.5},
                      {text("PMU tdie3"), std::nullopt},
                      {nullptr, 99.0}};
    const auto machine = make(makeAppleSiliconMac(SimulatedChip::m2));
    EXPECT_THAT(machine->sensors().processorTemperature(), Optional(48.5));
    EXPECT_EQ(darwin.sensorListsMatched, 1);
}

}  // namespace
}  // namespace vantor::mac_readers_test
