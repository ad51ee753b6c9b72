#include "platform/linux/storage/file_system_kind.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace vantor {

static void PrintTo(FileSystemKind kind, std::ostream* out) {
    constexpr const char* names[] = {"local",   "served",    "pseudo",         "hostShare",
                                     "network", "userSpace", "userSpacePseudo"};
    *out << names[static_cast<int>(kind)];
}

}  // namespace vantor

namespace vantor::file_system_kind_test {
namespace {

struct Row {
    std::string type;
    std::uint32_t major;
    FileSystemKind kind;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.type; }
};

std::vector<Row> rows() {
    using enum FileSystemKind;
    std::vector<Row> all;
    for (const char* type :
         {"proc",        "sysfs",      "cgroup",    "cgroup2",       "tmpfs",    "devtmpfs",
          "devpts",      "debugfs",    "tracefs",   "securityfs",    "bpf",      "fusectl",
          "configfs",    "mqueue",     "hugetlbfs", "pstore",        "efivarfs", "autofs",
          "binfmt_misc", "rpc_pipefs", "nsfs",      "ramfs",         "overlay",  "aufs",
          "rootfs",      "selinuxfs",  "nfsd",      "never_heard_of"}) {
        all.push_back({type, 0, pseudo});
    }
    for (const char* type : {"fuse.portal", "fuse.gvfsd-fuse", "fuse.lxcfs"})
        all.push_back({type, 0, userSpacePseudo});
    for (const char* type :
         {"nfs", "nfs4", "cifs", "smb3", "smbfs", "afs", "ceph", "glusterfs", "davfs", "lustre",
          "beegfs", "fuse.sshfs", "fuse.rclone", "fuse.s3fs", "fuse.glusterfs", "fuse.davfs2"}) {
        all.push_back({type, 0, network});
    }
    for (const char* type : {"ocfs2", "gfs2"})
        all.push_back({type, 8, network});
    for (const char* type : {"9p", "virtiofs", "vboxsf", "fuse.vmhgfs-fuse"})
        all.push_back({type, 0, hostShare});
    for (const char* type : {"fuse", "fuse.bindfs", "fuse.ifuse", "fuse.dislocker",
                             "fuse.veracrypt", "fuse.never_heard_of", "fuse."}) {
        all.push_back({type, 0, userSpace});
    }
    for (const char* type :
         {"fuse.ntfs-3g", "fuse.lowntfs-3g", "fuse.exfat", "fuse.ext2", "fuse.fuse2fs",
          "fuse.zfs-fuse", "fuse.mergerfs", "fuse.unionfs", "fuse.unionfs-fuse", "fuse.mhddfs",
          "fuse.gocryptfs", "fuse.encfs", "fuse.cryfs", "fuse.securefs", "ecryptfs"}) {
        all.push_back({type, 0, served});
    }
    for (const char* type : {"fuseblk", "fuseblk.ntfs-3g"})
        all.push_back({type, 8, served});
    for (const char* type : {"btrfs", "zfs", "bcachefs", "ubifs"})
        all.push_back({type, 0, local});
    for (const char* type : {"ext4", "xfs", "vfat", "exfat", "ntfs3", "iso9660", "squashfs", "f2fs",
                             "btrfs", "never_heard_of"}) {
        all.push_back({type, 8, local});
    }
    return all;
}

class FileSystemKindOf : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(Rows, FileSystemKindOf, testing::ValuesIn(rows()), [](const auto& row) {
    std::string name = row.param.type + (row.param.major == 0 ? "" : "OnADevice");
    for (char& c : name)
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
});

TEST_P(FileSystemKindOf, FollowsFromItsLine) {
    Mount mount;
    mount.type = GetParam().type;
    mount.major = GetParam().major;
    EXPECT_EQ(kindOf(mount), GetParam().kind);
}

TEST(FileSystemKind, OnlyDisksAndTheKernelAnswerForCertain) {
    using enum FileSystemKind;
    EXPECT_FALSE(mayHang(local));
    EXPECT_FALSE(mayHang(pseudo));
    for (const FileSystemKind kind : {served, hostShare, network, userSpace, userSpacePseudo})
        EXPECT_TRUE(mayHang(kind));
}

TEST(FileSystemKind, OnlyWhatIsServedFromDisksIsOnThemToo) {
    using enum FileSystemKind;
    EXPECT_TRUE(isOnDisks(local));
    EXPECT_TRUE(isOnDisks(served));
    for (const FileSystemKind kind : {pseudo, hostShare, network, userSpace, userSpacePseudo})
        EXPECT_FALSE(isOnDisks(kind));
}

}  // namespace
}  // namespace vantor::file_system_kind_test
