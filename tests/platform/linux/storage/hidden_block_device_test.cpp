#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/linux/storage/block_device.h"
#include "support/fake_kernel_tree.h"

/// Devices that a confined program is not shown, for as long as it runs. If each of them were
/// unknown, it would never list a volume.
namespace vantor::hidden_block_device_test {
namespace {

namespace fs = std::filesystem;

constexpr auto sata = "devices/pci0000:00/0000:00:17.0/ata1/block/sda";
constexpr auto stick = "devices/pci0000:00/0000:00:14.0/usb2/2-1/block/sdb";
constexpr auto mapped = "devices/virtual/block/dm-0";

class HiddenBlockDevice : public testing::Test {
  protected:
    void disk(const std::string& number, const std::string& device) {
        tree.blockDevice(number, device);
        tree.sys(device + "/removable", "0\n");
    }
    fs::path sys(const char* path) const { return tree.roots().sys / path; }

    BlockDeviceFacts read(std::uint32_t major, std::uint32_t minor) {
        Mount mount;
        mount.major = major;
        mount.minor = minor;
        return readBlockDevice(tree.roots(), mount);
    }
    std::string kind(std::uint32_t major, std::uint32_t minor) {
        const auto facts = read(major, minor);
        if (!facts.isInternal || !facts.isRemovable) return "unknown";
        std::string said = *facts.isInternal ? "internal" : "external";
        if (*facts.isRemovable) said += " removable";
        return said;
    }

    FakeKernelTree tree;
};

TEST_F(HiddenBlockDevice, IsInternalWhereOnlyItsLinkIsShown) {
    disk("8:0", sata);
    tree.removeSys("devices");
    EXPECT_EQ(kind(8, 0), "internal");
}

TEST_F(HiddenBlockDevice, IsExternalWhereItsLinkLeadsOut) {
    disk("8:16", stick);
    tree.blockDevice("8:17", std::string(stick) + "/sdb1");
    tree.removeSys("devices");
    EXPECT_EQ(kind(8, 16), "external");
    EXPECT_EQ(kind(8, 17), "external");
}

TEST_F(HiddenBlockDevice, KeepsItsNameWhereItsFolderSaysNothing) {
    tree.blockDevice("7:3", "devices/virtual/block/loop3");
    EXPECT_EQ(kind(7, 3), "external");
}

TEST_F(HiddenBlockDevice, UnderAStackLeavesTheOthersToSpeak) {
    disk("253:0", mapped);
    tree.link(std::string(mapped) + "/slaves/sdx", "../../../../somewhere/sdx");
    EXPECT_EQ(kind(253, 0), "internal");
    disk("8:16", stick);
    tree.link(std::string(mapped) + "/slaves/sdb", "../../../../somewhere/sdb");
    EXPECT_EQ(kind(253, 0), "external");
}

TEST_F(HiddenBlockDevice, UnderAStackIsExternalWhereTheStackSaysSo) {
    disk("253:0", mapped);
    tree.link(std::string(mapped) + "/slaves/sdb",
              "../../../../pci0000:00/0000:00:14.0/usb2/2-1/block/sdb");
    EXPECT_EQ(kind(253, 0), "external");
}

// Neither missing nor forbidden: the next read may have an answer.
TEST_F(HiddenBlockDevice, IsUnknownWhileItCannotBeReadForAnotherReason) {
    tree.blockDevice("8:0", sata);
    tree.sys(std::string(sata) + "/removable/instead", "of a file");
    EXPECT_EQ(kind(8, 0), "unknown");
    disk("253:0", mapped);
    tree.link(std::string(mapped) + "/slaves/sda", "../../../../somewhere/sda");
    EXPECT_EQ(kind(253, 0), "unknown");
}

/// Someone whom permissions bind, for as long as this lives.
class Nobody {
  public:
    Nobody() {
        if (::geteuid() == 0) isChanged_ = ::seteuid(65534) == 0;
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;
    ~Nobody() {
        if (isChanged_ && ::seteuid(0) != 0) ADD_FAILURE() << "still nobody";
    }
    static bool isBound() { return ::geteuid() != 0; }

  private:
    bool isChanged_ = false;
};

class ForbiddenBlockDevice : public HiddenBlockDevice {
  protected:
    ForbiddenBlockDevice() {
        disk("8:0", sata);
        disk("8:16", stick);
        fs::permissions(tree.roots().sys.parent_path(), fs::perms::all);
    }
    ~ForbiddenBlockDevice() override {
        for (const char* folder : {"devices", "dev/block"})
            fs::permissions(sys(folder), fs::perms::all);
    }
};

TEST_F(ForbiddenBlockDevice, IsWhatItsLinkTells) {
    fs::permissions(sys("devices"), fs::perms::none);
    const Nobody nobody;
    if (!Nobody::isBound()) GTEST_SKIP() << "permissions bind nobody here";
    EXPECT_EQ(kind(8, 0), "internal");
    EXPECT_EQ(kind(8, 16), "external");
}

TEST_F(ForbiddenBlockDevice, IsInternalWhereLinksMayBeListedButNotRead) {
    fs::permissions(
        sys("dev/block"),
        fs::perms::all ^ (fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec));
    const Nobody nobody;
    if (!Nobody::isBound()) GTEST_SKIP() << "permissions bind nobody here";
    EXPECT_EQ(kind(8, 0), "internal") << "it is not one that was pulled out";
}

}  // namespace
}  // namespace vantor::hidden_block_device_test
