#include "platform/macos/graphics/mac_graphics_devices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_graphics_devices_test {
namespace {

using testing::IsEmpty;
using testing::Optional;

class MacGraphicsDevicesTest : public FakeDarwinTest {
  protected:
    using Methods = std::map<std::string, FakeObject::Answer>;

    Ref device(std::uint64_t registryID, const std::string& name, bool isLowPower = false,
               bool isRemovable = false) {
        return objects.instance({{"registryID", registryID},
                                 {"name", objects.text(name)},
                                 {"hasUnifiedMemory", isLowPower},
                                 {"recommendedMaxWorkingSetSize", std::uint64_t{8} << 30},
                                 {"isLowPower", isLowPower},
                                 {"isRemovable", isRemovable}});
    }
    std::vector<GraphicsDevices::Device> copy(MacGraphicsDevices& devices) {
        std::vector<GraphicsDevices::Device> list(3);
        devices.copyAllDevices(list);
        return list;
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacGraphicsDevicesTest, TellsWhatTheDevicesSay) {
    darwin.devices = {objects.instance({{"registryID", ~std::uint64_t{0}},
                                        {"name", objects.text("Apple M2")},
                                        {"hasUnifiedMemory", true},
                                        {"recommendedMaxWorkingSetSize", std::uint64_t{1} << 33},
                                        {"isLowPower", false},
                                        {"isRemovable", false}})};
    MacGraphicsDevices devices(darwin.frameworks());
    const auto list = copy(devices);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front().registryID, ~std::uint64_t{0});
    EXPECT_EQ(list.front().name, "Apple M2");
    EXPECT_TRUE(list.front().hasUnifiedMemory);
    EXPECT_EQ(list.front().recommendedMaxWorkingSetSize, std::uint64_t{1} << 33);
}

TEST_F(MacGraphicsDevicesTest, DoesWithoutWhatADeviceHasNoMethodFor) {
    darwin.devices = {objects.instance({{"registryID", std::uint64_t{5}}})};
    MacGraphicsDevices devices(darwin.frameworks());
    const auto list = copy(devices);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front().registryID, 5u);
    EXPECT_EQ(list.front().name, "");
    EXPECT_FALSE(list.front().hasUnifiedMemory);
    EXPECT_EQ(list.front().recommendedMaxWorkingSetSize, 0u);
}

TEST_F(MacGraphicsDevicesTest, LeavesOutADeviceWithoutIdentifier) {
    darwin.devices = {objects.instance({{"name", objects.text("none")}}), nullptr,
                      device(5, "one")};
    MacGraphicsDevices devices(darwin.frameworks());
    const auto list = copy(devices);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front().registryID, 5u);
}

TEST_F(MacGraphicsDevicesTest, HasNoNameThatIsNoText) {
    for (const Ref other : objectsOtherThan(FakeObject::Kind::text)) {
        darwin.devices = {objects.instance({{"registryID", std::uint64_t{5}}, {"name", other}})};
        MacGraphicsDevices devices(darwin.frameworks());
        EXPECT_EQ(copy(devices).front().name, "");
    }
}

TEST_F(MacGraphicsDevicesTest, HasNoDevicesWhereThereIsNoList) {
    MacGraphicsDevices devices(darwin.frameworks());
    EXPECT_THAT(copy(devices), IsEmpty());
    EXPECT_EQ(devices.systemDefaultDevice(), std::nullopt);
    for (const Ref other : objectsOtherThan(FakeObject::Kind::array)) {
        darwin.otherDeviceList = other;
        EXPECT_THAT(copy(devices), IsEmpty());
    }
}

TEST_F(MacGraphicsDevicesTest, AsksForTheDefaultOfEquals) {
    darwin.devices = {device(5, "one"), device(6, "other")};
    darwin.defaultDevice = 1;
    MacGraphicsDevices devices(darwin.frameworks());
    EXPECT_EQ(copy(devices).size(), 2u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(6u));
    EXPECT_EQ(darwin.defaultDevicesCreated, 1);
}

TEST_F(MacGraphicsDevicesTest, DoesNotWakeTheFastProcessorOfANotebookWithTwo) {
    darwin.devices = {device(5, "Intel UHD Graphics 630", true), device(6, "Radeon Pro 5500M")};
    darwin.defaultDevice = 1;
    MacGraphicsDevices devices(darwin.frameworks());
    EXPECT_EQ(copy(devices).size(), 2u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(6u));
    EXPECT_EQ(darwin.defaultDevicesCreated, 0);
}

TEST_F(MacGraphicsDevicesTest, AsksWhereAnOutsideDeviceMayBeTheDefault) {
    darwin.devices = {device(5, "Intel Iris Plus", true), device(6, "outside", false, true)};
    darwin.defaultDevice = 0;
    MacGraphicsDevices devices(darwin.frameworks());
    EXPECT_EQ(copy(devices).size(), 2u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(5u));
    darwin.devices = {device(5, "a", true), device(6, "b"), device(7, "c")};
    darwin.defaultDevice = 2;
    EXPECT_EQ(copy(devices).size(), 3u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(7u));
}

TEST_F(MacGraphicsDevicesTest, KnowsTheOnlyDeviceForTheDefault) {
    darwin.devices = {device(5, "one", true)};
    MacGraphicsDevices devices(darwin.frameworks());
    EXPECT_EQ(copy(devices).size(), 1u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(5u));
    EXPECT_EQ(darwin.defaultDevicesCreated, 0);
}

TEST_F(MacGraphicsDevicesTest, ListsTheDefaultDeviceWhereTheListIsMissing) {
    darwin.devices = {device(5, "one"), device(6, "other")};
    darwin.defaultDevice = 1;
    const auto frameworks = darwin.frameworks();
    frameworks->metal.copyAllDevices = nullptr;
    MacGraphicsDevices devices(frameworks);
    const auto list = copy(devices);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front().registryID, 6u);
    EXPECT_THAT(devices.systemDefaultDevice(), Optional(6u));
    darwin.defaultDevice.reset();
    EXPECT_THAT(copy(devices), IsEmpty());
}

TEST_F(MacGraphicsDevicesTest, SurvivesEachFunctionMissing) {
    darwin.devices = {device(5, "one"), device(6, "other")};
    darwin.defaultDevice = 1;
    withEachFunctionMissing([&](const std::shared_ptr<const Frameworks>& some) {
        MacGraphicsDevices devices(some);
        copy(devices);
        devices.systemDefaultDevice();
    });
}

TEST_F(MacGraphicsDevicesTest, SurvivesEachCallFailing) {
    darwin.devices = {device(5, "one"), device(6, "other")};
    darwin.defaultDevice = 1;
    withEachCallFailing(30, [&](const std::shared_ptr<const Frameworks>& some) {
        MacGraphicsDevices devices(some);
        copy(devices);
        devices.systemDefaultDevice();
    });
}

TEST_F(MacGraphicsDevicesTest, KeepsNothingOfManyReads) {
    darwin.devices = {device(5, "one"), device(6, "other")};
    darwin.defaultDevice = 1;
    MacGraphicsDevices devices(darwin.frameworks());
    manyTimes([&] {
        ASSERT_EQ(copy(devices).size(), 2u);
        ASSERT_THAT(devices.systemDefaultDevice(), Optional(6u));
    });
}

}  // namespace
}  // namespace vantor::mac_graphics_devices_test
