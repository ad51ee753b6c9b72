#include "platform/linux/storage/block_device.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/fake_kernel_tree.h"
#include "support/named_row.h"

namespace vantor::block_device_test {
namespace {

const std::string pci = "devices/pci0000:00/0000:00:17.0/";

class BlockDeviceTest : public testing::Test {
  protected:
    /// A whole disk.
    void disk(const std::string& number, const std::string& device, const char* removable = "0") {
        tree.blockDevice(number, device);
        tree.sys(device + "/removable", std::string(removable) + "\n");
    }

    void stack(const std::string& upper, const std::string& lower) {
        tree.link(upper + "/slaves/" + lower, "../../../../../../somewhere/" + lower);
    }

    BlockDeviceFacts read(std::uint32_t major, std::uint32_t minor, const char* source = "none") {
        Mount mount;
        mount.major = major;
        mount.minor = minor;
        mount.source = source;
        return readBlockDevice(tree.roots(), mount);
    }

    /// "internal", "removable", both joined, or "unknown".
    std::string kind(std::uint32_t major, std::uint32_t minor, const char* source = "none") {
        const auto facts = read(major, minor, source);
        if (!facts.isInternal || !facts.isRemovable) return "unknown";
        std::string said = *facts.isInternal ? "internal" : "external";
        if (*facts.isRemovable) said += " removable";
        return said;
    }

    FakeKernelTree tree;
};

struct DiskRow : NamedRow {
    std::string device;
    std::string removable;
    std::string kind;
};

class WholeDisk : public BlockDeviceTest, public testing::WithParamInterface<DiskRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, WholeDisk,
    testing::Values(
        DiskRow{{"SATA"}, pci + "ata1/host0/target0:0:0/0:0:0:0/block/sda", "0", "internal"},
        DiskRow{{"NVMe"}, pci + "nvme/nvme0/nvme0n1", "0", "internal"},
        DiskRow{{"Virtual"}, "devices/pci0000:00/0000:00:02.0/virtio1/block/vda", "0", "internal"},
        DiskRow{{"USBStick"}, pci + "usb2/2-1/2-1:1.0/host6/block/sdb", "1", "external removable"},
        DiskRow{{"USBDisk"}, pci + "usb2/2-1/2-1:1.0/host6/block/sdb", "0", "external"},
        DiskRow{{"FireWireDisk"}, pci + "fw0/fw1/fw1.0/host7/block/sdb", "0", "external"},
        DiskRow{{"OldFireWireDisk"}, pci + "firewire/x/block/sdb", "0", "external"},
        DiskRow{{"NameLikeABus"}, pci + "usbdisks/fwx/block/sda", "0", "internal"},
        DiskRow{{"DiskOfAServer"},
                "devices/platform/host3/session1/target3:0:0/3:0:0:0/block/sdc",
                "0",
                "external"},
        DiskRow{{"DiskOfAServerByACard"}, pci + "host3/session12/block/sdc", "0", "external"},
        DiskRow{{"NameLikeASession"}, pci + "session/sessions1/block/sda", "0", "internal"},
        DiskRow{
            {"NVMeOfAServer"}, "devices/virtual/nvme-fabrics/ctl/nvme1/nvme1n1", "0", "external"},
        DiskRow{{"DiscDrive"}, pci + "ata2/host1/block/sr0", "1", "external removable"},
        DiskRow{{"Loop"}, "devices/virtual/block/loop3", "0", "external"},
        DiskRow{{"NetworkDisk"}, "devices/virtual/block/nbd0", "0", "external"},
        DiskRow{{"CompressedMemory"}, "devices/virtual/block/zram0", "0", "internal"},
        DiskRow{{"UnknownRemovable"}, pci + "block/sda", "?", "unknown"}),
    rowName<DiskRow>);

TEST_P(WholeDisk, IsInternalOrRemovable) {
    disk("8:0", GetParam().device, GetParam().removable.c_str());
    EXPECT_EQ(kind(8, 0), GetParam().kind);
}

TEST_P(WholeDisk, SpeaksForItsPartitions) {
    disk("8:0", GetParam().device, GetParam().removable.c_str());
    tree.blockDevice("8:1", GetParam().device + "/part1");
    EXPECT_EQ(kind(8, 1), GetParam().kind);
}

TEST_F(BlockDeviceTest, ACardIsExternalAndASolderedChipIsNot) {
    const std::string place = "devices/platform/soc/mmc_host/mmc0/mmc0:1/block/mmcblk0";
    disk("179:0", place);
    tree.blockDevice("179:1", place + "/mmcblk0p1");
    tree.sys(place + "/device/type", "SD\n");
    EXPECT_EQ(kind(179, 1), "external");
    tree.sys(place + "/device/type", "MMC\n");
    EXPECT_EQ(kind(179, 1), "internal");
}

// What a cable leads to is behind a port that says so, with bridges of its own in between.
TEST_F(BlockDeviceTest, ADiskBehindAPortForCablesIsExternal) {
    const std::string port = "devices/pci0000:00/0000:00:07.0";
    const std::string box = port + "/0000:03:00.0";
    const std::string place = box + "/0000:04:01.0/0000:05:00.0/nvme/nvme1/nvme1n1";
    disk("259:4", place);
    tree.blockDevice("259:5", place + "/nvme1n1p1");
    EXPECT_EQ(kind(259, 5), "internal");
    tree.sys(port + "/removable", "fixed\n");
    tree.sys(box + "/removable", "unknown\n");
    EXPECT_EQ(kind(259, 5), "internal");
    tree.sys(box + "/removable", "removable\n");
    EXPECT_EQ(kind(259, 4), "external");
    EXPECT_EQ(kind(259, 5), "external");
}

// A disk of NVMe that has several ways to it is in none of their folders.
TEST_F(BlockDeviceTest, ADiskWithSeveralWaysToItIsWhereTheyLead) {
    const std::string subsystem = "devices/virtual/nvme-subsystem/nvme-subsys0";
    disk("259:0", subsystem + "/nvme0n1");
    tree.blockDevice("259:1", subsystem + "/nvme0n1/nvme0n1p1");
    tree.link(subsystem + "/nvme0", "../../../pci0000:00/0000:00:1d.0/nvme/nvme0");
    EXPECT_EQ(kind(259, 1), "internal");
    tree.link(subsystem + "/nvme2", "../../nvme-fabrics/ctl/nvme2");
    EXPECT_EQ(kind(259, 1), "external");
    tree.removeSys(subsystem + "/nvme2");
    EXPECT_EQ(kind(259, 1), "internal");
    tree.sys("devices/pci0000:00/0000:00:1d.0/removable", "removable\n");
    EXPECT_EQ(kind(259, 1), "external");
}

TEST_F(BlockDeviceTest, AStackOfDevicesIsWhatIsUnderIt) {
    const std::string mapped = "devices/virtual/block/dm-0";
    disk("253:0", mapped);
    disk("8:0", pci + "ata1/block/sda");
    tree.blockDevice("8:2", pci + "ata1/block/sda/sda2");
    stack(mapped, "sda2");
    EXPECT_EQ(kind(253, 0), "internal");
    disk("8:16", pci + "usb1/1-1/block/sdb", "1");
    stack(mapped, "sdb");
    EXPECT_EQ(kind(253, 0), "external removable") << "one of the two can be pulled out";
}

TEST_F(BlockDeviceTest, AStackOnAStackIsWhatIsUnderBoth) {
    disk("253:1", "devices/virtual/block/dm-1");
    disk("9:0", "devices/virtual/block/md0");
    disk("8:16", pci + "usb1/1-1/block/sdb");
    stack("devices/virtual/block/dm-1", "md0");
    stack("devices/virtual/block/md0", "sdb");
    EXPECT_EQ(kind(253, 1), "external");
}

TEST_F(BlockDeviceTest, AStackInACircleComesToAnEnd) {
    disk("253:1", "devices/virtual/block/dm-1");
    stack("devices/virtual/block/dm-1", "dm-1");
    EXPECT_EQ(kind(253, 1), "internal");
}

TEST_F(BlockDeviceTest, AStackOfManyLayersIsWhatIsUnderAllOfThem) {
    disk("8:16", pci + "usb1/1-1/block/sdb");
    std::string below = "sdb";
    for (int layer = 1; layer <= 20; ++layer) {
        const std::string name = "dm-" + std::to_string(layer);
        disk("253:" + std::to_string(layer), "devices/virtual/block/" + name);
        stack("devices/virtual/block/" + name, below);
        below = name;
    }
    EXPECT_EQ(kind(253, 20), "external");
}

// Following every way down through ten layers of ten would take for ever.
TEST_F(BlockDeviceTest, AStackOfManyOnManyIsAskedOnce) {
    constexpr int width = 10;
    const auto nameOf = [](int layer, int i) { return "dm-" + std::to_string(layer * width + i); };
    for (int layer = 0; layer < 10; ++layer) {
        for (int i = 0; i < width; ++i) {
            const std::string device = "devices/virtual/block/" + nameOf(layer, i);
            disk("253:" + std::to_string(layer * width + i), device);
            for (int lower = 0; layer > 0 && lower < width; ++lower)
                stack(device, nameOf(layer - 1, lower));
        }
    }
    EXPECT_EQ(kind(253, 90), "internal");
}

TEST_F(BlockDeviceTest, AMachineThatShowsNoDevicesHasInternalOnes) {
    EXPECT_EQ(kind(8, 1), "internal");
}

// The mount stays when the stick goes.
TEST_F(BlockDeviceTest, ADeviceThatIsGoneWasRemovable) {
    disk("8:0", pci + "ata1/block/sda");
    EXPECT_EQ(kind(8, 17), "external removable");
}

TEST_F(BlockDeviceTest, TheLabelComesFromUdev) {
    disk("8:0", pci + "ata1/block/sda");
    EXPECT_EQ(read(8, 0).label, std::nullopt);
    tree.run("udev/data/b8:0", "E:ID_FS_LABEL=My_Disk\nE:ID_FS_LABEL_ENC=My\\x20Disk\n");
    EXPECT_EQ(read(8, 0).label, "My Disk");
    EXPECT_EQ(read(8, 1).label, std::nullopt);
}

class WithoutDeviceNumber : public BlockDeviceTest {
  protected:
    WithoutDeviceNumber() {
        disk("8:16", pci + "usb1/1-1/block/sdb", "1");
        tree.blockDevice("8:17", pci + "usb1/1-1/block/sdb/sdb1");
        tree.run("udev/data/b8:17", "E:ID_FS_LABEL_ENC=Pool\n");
    }
};

TEST_F(WithoutDeviceNumber, TheSourceIsFoundByItsName) {
    EXPECT_EQ(kind(0, 30, "/dev/sdb1"), "external removable");
    EXPECT_EQ(read(0, 30, "/dev/sdb1").label, "Pool");
}

TEST_F(WithoutDeviceNumber, TheFirstOfSeveralSourcesIsFound) {
    EXPECT_EQ(read(0, 30, "/dev/sdb1:/dev/sdc1").label, "Pool");
}

TEST_F(WithoutDeviceNumber, AMappedSourceIsFoundByItsMappedName) {
    const std::string mapped = "devices/virtual/block/dm-4";
    disk("253:4", mapped);
    tree.sys(mapped + "/dm/name", "luks-1 a\n");
    stack(mapped, "sdb1");
    tree.run("udev/data/b253:4", "E:ID_FS_LABEL_ENC=Vault\n");
    EXPECT_EQ(kind(0, 30, "/dev/mapper/luks-1\\040a"), "external removable");
    EXPECT_EQ(read(0, 30, "/dev/mapper/luks-1\\040a").label, "Vault");
    EXPECT_EQ(kind(0, 30, "/dev/mapper/other"), "internal");
}

TEST_F(WithoutDeviceNumber, ASlashInANameIsAnExclamationMark) {
    disk("104:0", pci + "cciss0/block/cciss!c0d0");
    tree.run("udev/data/b104:0", "E:ID_FS_LABEL_ENC=Array\n");
    EXPECT_EQ(read(0, 30, "/dev/cciss/c0d0").label, "Array");
}

TEST_F(WithoutDeviceNumber, AnUnknownSourceIsInternalAndHasNoLabel) {
    for (const char* source : {"rpool/data", "overlay", "", "/dev/", "/dev/sdz", "sdb1"}) {
        SCOPED_TRACE(source);
        EXPECT_EQ(kind(0, 30, source), "internal");
        EXPECT_EQ(read(0, 30, source).label, std::nullopt);
    }
}

}  // namespace
}  // namespace vantor::block_device_test
