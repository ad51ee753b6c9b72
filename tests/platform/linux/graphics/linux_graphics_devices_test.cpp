#include "platform/linux/graphics/linux_graphics_devices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/linux_machine.h"
#include "support/fake_graphics.h"

namespace vantor::linux_graphics_devices_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LinuxGraphicsDevicesTest : public testing::Test {
  protected:
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (const auto& device : graphics.devices())
            names.push_back(device.name);
        return names;
    }
    std::optional<std::uint64_t> chosen() {
        graphics.devices();
        return graphics.graphicsDevices.systemDefaultDevice();
    }

    FakeGraphics graphics;
};

TEST_F(LinuxGraphicsDevicesTest, NoneIsAnEmptyList) {
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_TRUE(graphics.accelerators.matchingServices());
    EXPECT_EQ(graphics.accelerators.iteratorNext(*graphics.accelerators.matchingServices()), 0U);
}

TEST_F(LinuxGraphicsDevicesTest, AFolderThatCannotBeListedIsAFailure) {
    graphics.tree.sys("class/drm", "this is no folder");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(graphics.accelerators.matchingServices(), std::nullopt);
}

TEST_F(LinuxGraphicsDevicesTest, CardsComeInTheOrderOfTheirNumbers) {
    graphics.card(10, "0000:04:00.0", "10de:2484", "nouveau");
    graphics.card(2, "0000:03:00.0", "1002:73bf", "amdgpu");
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    EXPECT_THAT(names(), ElementsAre("Intel 0x5917", "AMD 0x73bf", "NVIDIA 0x2484"));
}

TEST_F(LinuxGraphicsDevicesTest, ConnectorsAndRenderNodesAreNoCards) {
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    graphics.node("renderD128", "0000:00:02.0");
    graphics.tree.sys("class/drm/card0-HDMI-A-1/status", "connected\n");
    graphics.tree.link("class/drm/card0-HDMI-A-1/device", "../card0");
    graphics.tree.sys("class/drm/version", "drm 1.1.0 20060810\n");
    graphics.tree.sys("class/drm/card/vendor", "");
    graphics.tree.sys("class/drm/cardx/vendor", "");
    EXPECT_THAT(names(), ElementsAre("Intel 0x5917"));
}

TEST_F(LinuxGraphicsDevicesTest, TwoNodesOfOneDeviceAreOneCard) {
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    graphics.node("card1", "0000:00:02.0");
    EXPECT_THAT(names(), ElementsAre("Intel 0x5917"));
}

TEST_F(LinuxGraphicsDevicesTest, TwoCardsOfTheSameModelAreTwo) {
    graphics.card(0, "0000:03:00.0", "1002:73bf", "amdgpu");
    graphics.card(1, "0000:04:00.0", "1002:73bf", "amdgpu");
    const auto devices = graphics.devices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0].name, devices[1].name);
    EXPECT_EQ(devices[0].registryID, 0x300U);
    EXPECT_EQ(devices[1].registryID, 0x400U);
    const auto told = graphics.pass();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].id, devices[0].registryID);
    EXPECT_EQ(told[1].id, devices[1].registryID);
    EXPECT_EQ(told[1].model, devices[1].name);
}

TEST_F(LinuxGraphicsDevicesTest, TheDefaultIsWhereTheFirmwareShowsItsPictures) {
    graphics.card(0, "0000:03:00.0", "1002:73bf", "amdgpu", {{"boot_vga", "0"}});
    graphics.card(1, "0000:00:02.0", "8086:5917", "i915", {{"boot_vga", "1"}});
    EXPECT_EQ(chosen(), 0x10U);
}

TEST_F(LinuxGraphicsDevicesTest, TheDefaultIsTheFirstWhereTheFirmwareDoesNotTell) {
    graphics.card(1, "0000:03:00.0", "1002:73bf", "amdgpu");
    graphics.card(2, "0000:00:02.0", "8086:5917", "i915");
    EXPECT_EQ(chosen(), 0x300U);
}

TEST_F(LinuxGraphicsDevicesTest, ADeviceOfATreeIsNamedByIt) {
    const std::string gpu = "devices/platform/soc/fec00000.gpu";
    graphics.tree.sys(gpu + "/of_node/compatible", std::string("brcm,2711-v3d\0brcm,v3d\0", 24));
    graphics.tree.link(gpu + "/driver", "../../../../bus/platform/drivers/v3d");
    graphics.tree.link("class/drm/card0/device", "../../../" + gpu);
    const auto devices = graphics.devices();
    ASSERT_EQ(devices.size(), 1U);
    EXPECT_EQ(devices[0].name, "brcm,2711-v3d");
    EXPECT_TRUE(devices[0].hasUnifiedMemory);
    EXPECT_EQ(devices[0].registryID >> 63, 1U);
    EXPECT_EQ(FakeGraphics().devices().size(), 0U);
}

TEST_F(LinuxGraphicsDevicesTest, ADeviceWithoutAnAddressKeepsItsNumberElsewhere) {
    std::vector<std::uint64_t> ids;
    for (int i = 0; i < 2; ++i) {
        FakeGraphics other;  // in another folder
        other.tree.sys("devices/platform/vkms/uevent", "");
        other.tree.link("class/drm/card0/device", "../../../devices/platform/vkms");
        ids.push_back(other.devices().at(0).registryID);
    }
    EXPECT_EQ(ids[0], ids[1]);
}

TEST_F(LinuxGraphicsDevicesTest, IntegratedGraphicsOfIntelShareMemoryAndItsCardsDoNot) {
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    graphics.card(1, "0000:03:00.0", "8086:56a0", "xe");
    const auto devices = graphics.devices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_TRUE(devices[0].hasUnifiedMemory);
    EXPECT_FALSE(devices[1].hasUnifiedMemory);
}

TEST_F(LinuxGraphicsDevicesTest, CardsOfNVIDIAsDriverAreThereWithoutNodes) {
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    for (const char* const address : {"0000:41:00.0", "0000:01:00.0"}) {
        graphics.file(address, "vendor", "0x10de");
        graphics.file(address, "device", "0x2330");
        graphics.file(address, "class", "0x030200");
        graphics.tree.link("bus/pci/drivers/nvidia/" + std::string(address),
                           "../../../../" + graphics.folder(address));
    }
    graphics.tree.sys("bus/pci/drivers/nvidia/bind", "");
    graphics.file("0000:42:00.0", "class", "0x068000");
    graphics.tree.link("bus/pci/drivers/nvidia/0000:42:00.0",
                       "../../../../" + graphics.folder("0000:42:00.0"));
    const auto devices = graphics.devices();
    ASSERT_EQ(devices.size(), 3U);
    EXPECT_EQ(devices[0].name, "Intel 0x5917");
    EXPECT_EQ(devices[1].registryID, 0x100U);
    EXPECT_EQ(devices[2].registryID, 0x4100U);
    EXPECT_EQ(devices[2].name, "NVIDIA 0x2330");
}

TEST_F(LinuxGraphicsDevicesTest, AcceleratorsForComputingWithNodesAreCards) {
    graphics.card(0, "0000:03:00.0", "1002:74a1", "amdgpu", {{"class", "0x120000"}});
    EXPECT_THAT(names(), ElementsAre("AMD 0x74a1"));
}

TEST_F(LinuxGraphicsDevicesTest, ACardThatLeavesIsGoneAndMayComeBack) {
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    graphics.card(1, "0000:06:00.0", "1002:73bf", "amdgpu", {{"gpu_busy_percent", "5"}});
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(graphics.pass().at(1).statistics.size(), 1U);
    graphics.tree.removeSys(graphics.folder("0000:06:00.0"));
    EXPECT_THAT(graphics.pass(), testing::SizeIs(2));  // still listed
    EXPECT_THAT(names(), ElementsAre("Intel 0x5917"));
    graphics.card(1, "0000:06:00.0", "1002:73bf", "amdgpu", {{"gpu_busy_percent", "7"}});
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(graphics.pass().at(1).statistics.at("Device Utilization %"), 7);
}

TEST_F(LinuxGraphicsDevicesTest, ACardWithoutFilesIsNamedByItsDriver) {
    graphics.tree.link(graphics.folder("0000:05:00.0") + "/driver", "../../../bus/pci/drivers/ast");
    graphics.node("card0", "0000:05:00.0");
    EXPECT_THAT(names(), ElementsAre("ast"));
}

TEST(LiveGraphics, ThisMachinesCardsAreTold) {
    LinuxMachine machine;
    std::vector<GraphicsDevices::Device> devices;
    machine.graphicsDevices().copyAllDevices(devices);
    const auto iterator = machine.accelerators().matchingServices();
    ASSERT_TRUE(iterator);
    std::size_t services = 0;
    while (const auto service = machine.accelerators().iteratorNext(*iterator)) {
        ASSERT_LT(services, devices.size());
        EXPECT_EQ(machine.accelerators().registryEntryID(service), devices[services].registryID);
        EXPECT_FALSE(devices[services].name.empty());
        ++services;
    }
    EXPECT_EQ(services, devices.size());
    EXPECT_EQ(machine.graphicsDevices().systemDefaultDevice().has_value(), !devices.empty());
}

}  // namespace
}  // namespace vantor::linux_graphics_devices_test
