#include "platform/linux/storage/linux_mounted_volumes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/fake_file_systems.h"
#include "support/fake_kernel_tree.h"
#include "support/named_row.h"

namespace vantor::linux_mounted_volumes_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Volume = MountedVolumes::Volume;
using Details = MountedVolumes::Details;
using Space = FileSystems::Space;

class LinuxMountedVolumesTest : public testing::Test {
  protected:
    void mount(const std::string& table) { tree.proc("self/mountinfo", table); }

    Details detailsOf(const std::string& path) {
        EXPECT_TRUE(volumes.mountedVolumes());
        return volumes.details({path, {}});
    }

    FakeKernelTree tree;
    std::shared_ptr<FakeFileSystems> fileSystems = std::make_shared<FakeFileSystems>();
    LinuxMountedVolumes volumes{tree.roots(), fileSystems};
};

TEST_F(LinuxMountedVolumesTest, GivesThePathsAndTheirLastComponents) {
    mount(
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "2 1 8:2 / /mnt/a\\040b rw - ext4 /dev/sda2 rw\n"
        "3 1 8:3 / /mnt/c\\012d\\134e rw - ext4 /dev/sda3 rw\n");
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    ASSERT_THAT(*list, SizeIs(3));
    EXPECT_EQ((*list)[0].path, "/");
    EXPECT_EQ((*list)[0].lastPathComponent, "");
    EXPECT_EQ((*list)[1].path, "/mnt/a b");
    EXPECT_EQ((*list)[1].lastPathComponent, "a b");
    EXPECT_EQ((*list)[2].path, "/mnt/c\nd\\e");
    fileSystems->spaces["/mnt/c\nd\\e"] = {1, 2, 1, false, {}};
    EXPECT_EQ(volumes.details((*list)[2]).totalCapacity, 2);
}

TEST_F(LinuxMountedVolumesTest, FailsWithoutTheTableUntilItAppears) {
    EXPECT_EQ(volumes.mountedVolumes(), std::nullopt);
    mount("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    EXPECT_NE(volumes.mountedVolumes(), std::nullopt);
}

TEST_F(LinuxMountedVolumesTest, ForgetsEverythingWhenTheTableCannotBeRead) {
    mount("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    ASSERT_TRUE(volumes.mountedVolumes());
    tree.removeProc("self/mountinfo");
    EXPECT_EQ(volumes.mountedVolumes(), std::nullopt);
    EXPECT_EQ(volumes.classification({"/", {}}).isLocal, std::nullopt);
}

TEST_F(LinuxMountedVolumesTest, AnEmptyTableHasNoVolumes) {
    mount("");
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    EXPECT_THAT(*list, IsEmpty());
}

TEST_F(LinuxMountedVolumesTest, ClassifiesInAnyOrder) {
    mount(
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "2 1 0:2 / /proc rw - proc proc rw\n"
        "3 1 0:3 / /net rw - nfs4 server:/ rw\n");
    ASSERT_TRUE(volumes.mountedVolumes());
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(volumes.classification({"/net", {}}).isLocal, false);
        EXPECT_EQ(volumes.classification({"/", {}}).isLocal, true);
        EXPECT_EQ(volumes.classification({"/", {}}).isBrowsable, true);
        EXPECT_EQ(volumes.classification({"/proc", {}}).isBrowsable, false);
    }
}

TEST_F(LinuxMountedVolumesTest, KnowsNothingOfOtherPaths) {
    mount("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    ASSERT_TRUE(volumes.mountedVolumes());
    const Volume other{"/elsewhere", "elsewhere"};
    EXPECT_EQ(volumes.classification(other).isLocal, std::nullopt);
    EXPECT_EQ(volumes.classification(other).isBrowsable, std::nullopt);
    EXPECT_EQ(volumes.details(other).isReadOnly, std::nullopt);
    EXPECT_THAT(fileSystems->touched, IsEmpty());
}

TEST_F(LinuxMountedVolumesTest, TouchesOnlyWhatIsLocalAndBrowsable) {
    mount(
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "2 1 0:2 / /proc rw - proc proc rw\n"
        "3 1 0:3 / /net rw - nfs4 server:/ rw\n"
        "4 1 0:4 / /far rw - fuse.sshfs me@there: rw\n"
        "5 3 8:5 / /net/disk rw - ext4 /dev/sda5 rw\n"
        "6 1 0:6 / /vault rw - fuse x rw\n");
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    ASSERT_THAT(*list, SizeIs(6));
    for (const Volume& volume : *list) {
        volumes.classification(volume);
        volumes.details(volume);
    }
    EXPECT_THAT(fileSystems->touched, ElementsAre("/"));
}

struct SpaceRow : NamedRow {
    std::optional<Space> space;
    std::optional<std::int64_t> total;
    std::optional<std::int64_t> available;
};

class VolumeSpace : public LinuxMountedVolumesTest, public testing::WithParamInterface<SpaceRow> {};

constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t maxSigned = most / 2;
constexpr auto unknown = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Rows, VolumeSpace,
    testing::Values(SpaceRow{{"Usual"}, Space{4096, 1000, 300, false, {}}, 4096000, 1228800},
                    SpaceRow{{"Failure"}, unknown, unknown, unknown},
                    SpaceRow{{"SameMount"}, Space{4096, 1000, 300, false, 1}, 4096000, 1228800},
                    SpaceRow{{"OtherMount"}, Space{4096, 1000, 300, false, 2}, unknown, unknown},
                    SpaceRow{{"Zero"}, Space{4096, 0, 0, false, {}}, 0, 0},
                    SpaceRow{{"NoBlockSize"}, Space{0, 1000, 300, false, {}}, 0, 0},
                    SpaceRow{{"Largest"},
                             Space{1, maxSigned, maxSigned, false, {}},
                             std::numeric_limits<std::int64_t>::max(),
                             std::numeric_limits<std::int64_t>::max()},
                    SpaceRow{{"TotalTooLarge"}, Space{1, maxSigned + 1, 5, false, {}}, unknown, 5},
                    SpaceRow{{"TotalWraps"},
                             Space{std::uint64_t{1} << 32, std::uint64_t{1} << 32, 0, false, {}},
                             unknown,
                             0},
                    SpaceRow{{"LessThanNothingAvailable"},
                             Space{4096, 1000, most, false, {}},
                             4096000,
                             unknown}),
    rowName<SpaceRow>);

TEST_P(VolumeSpace, IsCountedInBytes) {
    mount("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    if (GetParam().space) fileSystems->spaces["/"] = *GetParam().space;
    const Details details = detailsOf("/");
    EXPECT_EQ(details.totalCapacity, GetParam().total);
    EXPECT_EQ(details.availableCapacity, GetParam().available);
    EXPECT_EQ(details.isReadOnly, false);
    EXPECT_EQ(details.isInternal, true);
}

struct ReadOnlyRow : NamedRow {
    std::string options;
    std::string superOptions;
    bool flag;
    bool isReadOnly;
};

class ReadOnlyVolume : public LinuxMountedVolumesTest,
                       public testing::WithParamInterface<ReadOnlyRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ReadOnlyVolume,
    testing::Values(ReadOnlyRow{{"Nowhere"}, "rw,noatime", "rw,errors=remount-ro", false, false},
                    ReadOnlyRow{{"TheMount"}, "ro,noatime", "rw", false, true},
                    ReadOnlyRow{{"TheMountAlone"}, "ro", "rw", false, true},
                    ReadOnlyRow{{"TheFileSystem"}, "rw", "ro,x", false, true},
                    ReadOnlyRow{{"TheAnswer"}, "rw", "rw", true, true},
                    ReadOnlyRow{{"AnOptionThatBeginsLikeIt"}, "root,x", "rw,ro_x", false, false}),
    rowName<ReadOnlyRow>);

TEST_P(ReadOnlyVolume, IsSaidBy) {
    mount("1 0 8:1 / / " + GetParam().options + " - ext4 /dev/sda1 " + GetParam().superOptions +
          "\n");
    fileSystems->spaces["/"] = {4096, 10, 5, GetParam().flag, {}};
    EXPECT_EQ(detailsOf("/").isReadOnly, GetParam().isReadOnly);
}

TEST_F(LinuxMountedVolumesTest, IsReadOnlyOrNotEvenWithoutFigures) {
    mount("1 0 8:1 / / ro - ext4 /dev/sda1 rw\n");
    EXPECT_EQ(detailsOf("/").isReadOnly, true);
}

TEST_F(LinuxMountedVolumesTest, IsNamedByItsLabel) {
    mount("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    EXPECT_EQ(detailsOf("/").name, std::nullopt);
    tree.run("udev/data/b8:1", "E:ID_FS_LABEL_ENC=System\n");
    EXPECT_EQ(detailsOf("/").name, "System");
}

TEST_F(LinuxMountedVolumesTest, ADatasetIsNamedByItsSource) {
    mount("1 0 0:40 / / rw - zfs rpool/my\\040data rw\n");
    EXPECT_EQ(detailsOf("/").name, "rpool/my data");
}

TEST_F(LinuxMountedVolumesTest, TellsRemovableFromInternal) {
    mount(
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "2 1 8:17 / /media/stick rw - vfat /dev/sdb1 rw\n");
    const std::string disk = "devices/pci0000:00/ata1/block/sda";
    const std::string stick = "devices/pci0000:00/usb1/1-1/block/sdb";
    tree.sys(disk + "/removable", "0\n");
    tree.sys(stick + "/removable", "1\n");
    tree.blockDevice("8:1", disk + "/sda1");
    tree.blockDevice("8:17", stick + "/sdb1");
    EXPECT_EQ(detailsOf("/").isInternal, true);
    EXPECT_EQ(detailsOf("/").isRemovable, false);
    EXPECT_EQ(detailsOf("/media/stick").isInternal, false);
    EXPECT_EQ(detailsOf("/media/stick").isRemovable, true);
}

// The kernel hands the table over in pages, however large the buffer is.
TEST_F(LinuxMountedVolumesTest, ReadsATableOfManyPagesToItsEnd) {
    std::string table = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";
    for (int i = 2; i < 3000; ++i) {
        const std::string n = std::to_string(i);
        table += n + " 1 8:" + n + " / /mnt/volume-" + n + " rw - ext4 /dev/sd" + n + " rw\n";
    }
    ASSERT_GT(table.size(), 100'000U);
    mount(table);
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    EXPECT_THAT(*list, SizeIs(2999));
    EXPECT_EQ(list->back().path, "/mnt/volume-2999");
}

}  // namespace
}  // namespace vantor::linux_mounted_volumes_test
