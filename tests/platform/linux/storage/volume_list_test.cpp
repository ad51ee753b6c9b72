#include "platform/linux/storage/volume_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/named_row.h"

namespace vantor::volume_list_test {
namespace {

using Lines = std::vector<std::string>;

const std::string root = "1 0 8:1 / / rw - ext4 /dev/sda1 rw";
const std::string nfs = "2 1 0:9 / /srv rw - nfs4 server:/srv rw";
const std::string vault = "3 1 0:10 / /vault rw - fuse.vault vault rw";
const std::string pool = "4 1 0:11 / /pool rw - fuse.mergerfs a:b rw";

std::string joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

/// The mount points of the volumes, in order; those that are not local in "<>", those that are not
/// browsable in "()", and among the others those that may hang in "[]".
Lines list(const std::string& text) {
    std::vector<Mount> mounts;
    parseMountTable(text, mounts);
    Lines listed;
    for (const ListedMount& each : listMounts(mounts)) {
        std::string path = unescapeMountText(mounts[each.index].mountPoint);
        if (!each.isLocal) path = "<" + path + ">";
        if (!each.isBrowsable) path = "(" + path + ")";
        if (each.isLocal && each.isBrowsable && each.mayHang) path = "[" + path + "]";
        listed.push_back(path);
    }
    return listed;
}

struct Row : NamedRow {
    Lines table;
    Lines volumes;
};

class VolumeList : public testing::TestWithParam<Row> {};

TEST_P(VolumeList, IsWhatPeopleCallVolumes) {
    EXPECT_EQ(list(joined(GetParam().table)), GetParam().volumes);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, VolumeList,
    testing::Values(
        Row{{"NothingAtAll"}, {}, {}},
        Row{{"Disks"},
            {root, "2 1 8:2 / /home rw - xfs /dev/sda2 rw",
             "3 1 8:3 / /boot rw - ext2 /dev/sda3 rw",
             "4 3 8:4 / /boot/efi rw - vfat /dev/sda4 rw"},
            {"/", "/home", "/boot", "/boot/efi"}},
        Row{{"Pseudo"},
            {root, "2 1 0:4 / /proc rw - proc proc rw", "3 1 0:5 / /tmp rw - tmpfs tmpfs rw"},
            {"/", "(/proc)", "(/tmp)"}},
        Row{{"Network"},
            {root, nfs, "3 1 0:10 / /smb rw - cifs //server/share rw"},
            {"/", "</srv>", "</smb>"}},
        Row{{"HostShare"}, {root, "2 1 0:9 / /host rw - virtiofs host rw"}, {"/", "</host>"}},
        Row{{"UserSpace"},
            {root, "2 1 0:9 / /remote rw - fuse.sshfs me@there: rw", vault,
             "4 1 0:11 / /var/lib/lxcfs rw - fuse.lxcfs lxcfs rw"},
            {"/", "</remote>", "</vault>", "(/var/lib/lxcfs)"}},
        Row{{"Stick"},
            {root, "2 1 8:17 / /media/me/STICK rw - fuseblk /dev/sdb1 rw"},
            {"/", "[/media/me/STICK]"}},
        Row{{"Pool"}, {root, pool}, {"/", "[/pool]"}},
        Row{{"Disc"},
            {root, "2 1 11:0 / /media/me/Disc ro - iso9660 /dev/sr0 ro"},
            {"/", "/media/me/Disc"}},
        Row{{"BlanksAndLineEnds"},
            {root, "2 1 8:17 / /media/a\\040b\\012c\\134d rw - vfat /dev/sdb1 rw"},
            {"/", "/media/a b\nc\\d"}},
        Row{{"ZFS"},
            {"1 0 0:20 / / rw - zfs rpool/ROOT/a rw", "2 1 0:21 / /home rw - zfs rpool/home rw"},
            {"/", "/home"}}),
    rowName<Row>);

INSTANTIATE_TEST_SUITE_P(
    Root, VolumeList,
    testing::Values(
        Row{{"Overlay"},
            {"1 0 0:50 / / rw - overlay overlay rw,lowerdir=/a",
             "2 1 0:51 / /merged rw - overlay overlay rw"},
            {"/", "(/merged)"}},
        Row{{"HostShare"}, {"1 0 0:50 / / rw - virtiofs root rw"}, {"[/]"}},
        Row{{"Memory"}, {"1 0 0:50 / / rw - tmpfs tmpfs rw"}, {"/"}},
        Row{{"UserSpace"}, {"1 0 0:50 / / rw - fuse.fuse-overlayfs x rw"}, {"[/]"}},
        Row{{"DisksOnAServedRoot"},
            {"1 0 8:1 / / rw - fuseblk /dev/sda1 rw", "2 1 8:2 / /home rw - ext4 /dev/sda2 rw"},
            {"[/]", "/home"}},
        Row{{"Network"}, {"1 0 0:50 / / rw - nfs server:/root rw"}, {"</>"}},
        Row{{"NetworkProgram"}, {"1 0 0:50 / / rw - fuse.sshfs me@there: rw"}, {"</>"}},
        Row{{"DisksOnANetworkRoot"},
            {"1 0 0:50 / / rw - nfs server:/root rw", "2 1 8:1 / /scratch rw - ext4 /dev/sda1 rw"},
            {"</>", "/scratch"}},
        Row{{"FolderOfADisk"},
            {"1 0 8:1 /var/lib/lxc/a/rootfs / rw - ext4 /dev/sda1 rw",
             "2 1 8:1 /x /etc/hosts rw - ext4 /dev/sda1 rw"},
            {"/"}},
        Row{{"CoversTheFirstOne"}, {"1 1 0:2 / / rw - rootfs rootfs rw", root}, {"/"}},
        Row{{"CoversTheOneThatItLiesIn"},
            {"3 3 0:2 / / rw - rootfs rootfs rw", "4 3 8:2 / / rw - ext4 /dev/sda2 rw"},
            {"/"}},
        Row{{"OutOfSight"}, {"7 5 8:2 / /jail/data rw - ext4 /dev/sda2 rw"}, {"/jail/data"}}),
    rowName<Row>);

INSTANTIATE_TEST_SUITE_P(
    Hidden, VolumeList,
    testing::Values(
        Row{{"FoldersOfADisk"}, {root, "2 1 8:2 /a /mnt rw - ext4 /dev/sda2 rw"}, {"/"}},
        Row{{"FilesOfADisk"},
            {"1 0 0:50 / / rw - overlay overlay rw",
             "2 1 8:1 /docker/1/hosts /etc/hosts rw - ext4 /dev/sda1 rw",
             "3 1 8:1 /docker/1/resolv.conf /etc/resolv.conf rw - ext4 /dev/sda1 rw"},
            {"/"}},
        Row{{"Snaps"},
            {root, "2 1 7:1 / /snap/core/1 ro - squashfs /dev/loop1 ro",
             "3 1 7:2 / /var/lib/snapd/snap/x/2 ro - squashfs /dev/loop2 ro"},
            {"/"}},
        Row{{"Containers"},
            {root, "2 1 253:3 / /var/lib/docker/devicemapper/mnt/1 rw - ext4 /dev/dm-3 rw",
             "3 1 253:4 / /var/lib/containers/x rw - xfs /dev/dm-4 rw"},
            {"/"}},
        Row{{"ADiskForContainersIsNot"},
            {root, "2 1 8:9 / /var/lib/docker rw - ext4 /dev/sda9 rw"},
            {"/", "/var/lib/docker"}},
        Row{{"RunButNotItsMedia"},
            {root, "2 1 8:5 / /run/backup rw - ext4 /dev/sda5 rw",
             "3 1 8:17 / /run/media/me/STICK rw - vfat /dev/sdb1 rw",
             "4 1 0:30 / /run rw - tmpfs tmpfs rw"},
            {"/", "(/run)"}},
        Row{{"Media"},
            {root, "4 1 0:30 / /run rw - tmpfs tmpfs rw",
             "5 4 8:17 / /run/media/me/STICK rw - vfat /dev/sdb1 rw"},
            {"/", "(/run)", "/run/media/me/STICK"}},
        Row{{"DotFolders"},
            {root, "2 1 8:5 / /.snapshots rw - ext4 /dev/sda5 rw",
             "3 1 8:6 / /home/me/.cache/x rw - ext4 /dev/sda6 rw",
             "4 1 8:7 / /mnt/a.b rw - ext4 /dev/sda7 rw",
             "5 1 8:17 / /run/media/me/.x rw - vfat /dev/sdb1 rw"},
            {"/", "/mnt/a.b"}},
        Row{{"ImagesOfTheSystem"},
            {root, "2 1 7:0 / /usr/lib/x ro - erofs /dev/loop0 ro",
             "3 1 7:1 / /rofs ro - squashfs /dev/loop1 ro",
             "4 1 7:2 / /opt/iso ro - iso9660 /dev/loop2 ro",
             "5 1 7:3 / /var/lib/disk rw - ext4 /dev/loop3 rw",
             "6 1 8:5 / /usr ro - squashfs /dev/sda5 ro"},
            {"/", "/var/lib/disk", "/usr"}},
        Row{{"ImagesOfPeopleAreNot"},
            {root, "2 1 7:0 / /media/me/Disc ro - iso9660 /dev/loop0 ro",
             "3 1 7:1 / /mnt ro - squashfs /dev/loop1 ro", "4 1 7:2 / /optics ro - udf /dev/l ro"},
            {"/", "/media/me/Disc", "/mnt", "/optics"}}),
    rowName<Row>);

INSTANTIATE_TEST_SUITE_P(
    Duplicates, VolumeList,
    testing::Values(
        Row{{"TheRootStands"},
            {"1 0 0:2 / / rw - tmpfs x rw", root, "5 1 8:1 / /a rw - ext4 /dev/sda1 rw"},
            {"/"}},
        Row{{"TheRootStandsThoughListedLast"},
            {"2 1 8:1 / /a rw - ext4 /dev/sda1 rw", root},
            {"/"}},
        Row{{"TheRootStandsThoughItIsAFolder"},
            {"1 0 8:1 /deploy/0 / rw - ext4 /dev/sda1 rw",
             "2 1 8:1 / /sysroot ro - ext4 /dev/sda1 rw",
             "3 1 8:1 /var /var rw - ext4 /dev/sda1 rw"},
            {"/"}},
        Row{{"TheShortestStands"},
            {root, "2 1 8:2 / /mnt/long rw - ext4 /dev/sda2 rw",
             "3 1 8:2 / /mnt/s rw - ext4 /dev/sda2 rw", "4 1 8:2 / /mnt/t rw - ext4 /dev/sda2 rw"},
            {"/", "/mnt/s"}},
        Row{{"SubvolumesOfTheRoot"},
            {"1 0 0:30 /@ / rw - btrfs /dev/sda2 rw,subvolid=256,subvol=/@",
             "2 1 0:30 /@home /home rw - btrfs /dev/sda2 rw,subvolid=257,subvol=/@home",
             "3 1 0:30 / /mnt/all rw - btrfs /dev/sda2 rw,subvolid=5,subvol=/"},
            {"/"}},
        Row{{"TheWholeStandsForItsSubvolumes"},
            {root, "2 1 0:30 /@a /a rw - btrfs /dev/sdb1 rw,subvol=/@a",
             "3 1 0:30 / /mnt/whole rw - btrfs /dev/sdb1 rw,subvol=/"},
            {"/", "/mnt/whole"}},
        Row{{"TheShortestSubvolume"},
            {root, "2 1 0:30 /@logs /var/log rw - btrfs /dev/sdb1 rw,subvol=/@logs",
             "3 1 0:30 /@home /home rw - btrfs /dev/sdb1 rw,subvol=/@home"},
            {"/", "/home"}},
        Row{{"FoldersOfSubvolumesAreHidden"},
            {"1 0 0:50 / / rw - overlay overlay rw",
             "2 1 0:30 /@/docker/hosts /etc/hosts rw - btrfs /dev/sda2 rw,subvolid=256,subvol=/@"},
            {"/"}},
        Row{{"SubvolumeWithAComma"},
            {root, "2 1 0:30 /a,b /data rw - btrfs /dev/sdb1 rw,subvolid=9,subvol=/a,b"},
            {"/", "/data"}},
        Row{{"SubvolumeOnOldKernels"},
            {root, "2 1 0:30 /@home /home rw - btrfs /dev/sdb1 rw,space_cache"},
            {"/", "/home"}},
        Row{{"PseudoFileSystemsAreAllListed"},
            {root, "2 1 0:5 / /a rw - tmpfs x rw", "3 1 0:5 / /b rw - tmpfs x rw"},
            {"/", "(/a)", "(/b)"}},
        Row{{"AHiddenOneDoesNotStand"},
            {root, "2 1 8:2 / /.a rw - ext4 /dev/sda2 rw",
             "3 1 8:2 / /mnt/visible rw - ext4 /dev/sda2 rw"},
            {"/", "/mnt/visible"}}),
    rowName<Row>);

INSTANTIATE_TEST_SUITE_P(
    Covered, VolumeList,
    testing::Values(
        Row{{"BySomethingOverIt"},
            {root, "2 1 8:2 / /mnt rw - ext4 /dev/sda2 rw",
             "3 2 8:3 / /mnt rw - ext4 /dev/sda3 rw"},
            {"/", "/mnt"}},
        Row{{"BySomethingElseOverIt"},
            {root, "2 1 8:2 / /mnt rw - ext4 /dev/sda2 rw", "3 2 0:9 / /mnt rw - tmpfs x rw"},
            {"/", "(/mnt)"}},
        Row{{"BySomethingOverItsParent"},
            {root, "2 1 8:2 / /mnt/a rw - ext4 /dev/sda2 rw", "3 1 0:9 / /mnt rw - tmpfs x rw"},
            {"/", "(/mnt)"}},
        Row{{"NotByTheFolderItLiesIn"},
            {root, "3 1 0:9 / /mnt rw - tmpfs x rw", "2 3 8:2 / /mnt/a rw - ext4 /dev/sda2 rw"},
            {"/", "(/mnt)", "/mnt/a"}},
        Row{{"NotByANeighbour"},
            {root, "2 1 8:2 / /mnt/ab rw - ext4 /dev/sda2 rw", "3 1 0:9 / /mnt/a rw - tmpfs x rw"},
            {"/", "/mnt/ab", "(/mnt/a)"}},
        Row{{"TheOtherMountStandsThen"},
            {root, "2 1 8:2 / /a rw - ext4 /dev/sda2 rw", "3 2 0:9 / /a rw - tmpfs x rw",
             "4 1 8:2 / /longer rw - ext4 /dev/sda2 rw"},
            {"/", "(/a)", "/longer"}},
        Row{{"ByANewRoot"},
            {root, "2 1 8:2 / /a rw - ext4 /dev/sda2 rw", "3 1 8:3 / / rw - ext4 /dev/sda3 rw"},
            {"/"}}),
    rowName<Row>);

/// A disk below the mount of that number.
std::string diskBelow(int mount, const std::string& path) {
    return "9 " + std::to_string(mount) + " 8:17 / " + path + " rw - ext4 /dev/sdb1 rw";
}

INSTANTIATE_TEST_SUITE_P(
    Reached, VolumeList,
    testing::Values(
        Row{{"ThroughTheNetwork"},
            {root, nfs, diskBelow(2, "/srv/d")},
            {"/", "</srv>", "</srv/d>"}},
        Row{{"ThroughAProgram"},
            {root, vault, diskBelow(3, "/vault/d")},
            {"/", "</vault>", "</vault/d>"}},
        Row{{"ThroughAPool"}, {root, pool, diskBelow(4, "/pool/d")}, {"/", "[/pool]", "[/pool/d]"}},
        Row{{"ThroughTheNetworkAndAPool"},
            {root, nfs, "5 2 0:11 / /srv/pool rw - fuse.mergerfs a:b rw",
             diskBelow(5, "/srv/pool/d")},
            {"/", "</srv>", "</srv/pool>", "</srv/pool/d>"}},
        Row{{"ThroughAnAutomount"},
            {root, "2 1 0:9 / /boot rw - autofs systemd-1 rw",
             "3 2 8:2 / /boot rw - vfat /dev/sda2 rw"},
            {"/", "/boot"}},
        Row{{"ElsewhereToo"},
            {root, nfs, diskBelow(2, "/srv/d"), "10 1 8:17 / /mnt/longer rw - ext4 /dev/sdb1 rw"},
            {"/", "</srv>", "</srv/d>", "/mnt/longer"}},
        Row{{"ThroughNoPoolToo"},
            {root, pool, diskBelow(4, "/pool/d"), "10 1 8:17 / /mnt/longer rw - ext4 /dev/sdb1 rw"},
            {"/", "[/pool]", "/mnt/longer"}}),
    rowName<Row>);

TEST(VolumeListOf, ADamagedTableWithACircleComesToAnEnd) {
    EXPECT_THAT(list("1 0 8:1 / / rw - ext4 a rw\n2 1 8:2 / / rw - ext4 b rw\n"
                     "1 2 8:3 / / rw - ext4 c rw\n"),
                testing::SizeIs(testing::Le(1)));
    EXPECT_EQ(list("2 3 8:1 / /a rw - ext4 a rw\n3 2 8:2 / /a rw - ext4 b rw\n"), Lines{});
}

TEST(VolumeListOf, ADamagedTableWithTwoSlashesInARowComesToAnEnd) {
    const std::string odd =
        "2 1 8:2 / //data rw - ext4 b rw\n3 2 8:3 / //data//more/ rw - ext4 c rw\n";
    EXPECT_THAT(list(root + "\n" + odd), testing::SizeIs(testing::Ge(1)));
}

TEST(VolumeListOf, ThousandsOfMountsIsMadeInNoTime) {
    std::string text = root + "\n";
    for (int i = 2; i < 10000; ++i) {
        const std::string n = std::to_string(i);
        text += n + " 1 8:" + n + " / /data/deep/down/" + n + " rw - ext4 /dev/sd" + n + " rw\n";
    }
    EXPECT_THAT(list(text), testing::SizeIs(9999));
}

}  // namespace
}  // namespace vantor::volume_list_test
