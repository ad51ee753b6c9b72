#include "platform/linux/storage/file_system_kind.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vantor {

namespace {

using namespace std::string_view_literals;

// Clusters that share a block device belong to the network: they wait for their other members.
constexpr std::array networkTypes{"acfs"sv,  "afs"sv,       "auristorfs"sv, "beegfs"sv, "ceph"sv,
                                  "cifs"sv,  "coda"sv,      "davfs"sv,      "fhgfs"sv,  "gfs"sv,
                                  "gfs2"sv,  "glusterfs"sv, "gpfs"sv,       "ibrix"sv,  "lustre"sv,
                                  "mfs"sv,   "ncp"sv,       "ncpfs"sv,      "nfs"sv,    "nfs4"sv,
                                  "ocfs2"sv, "orangefs"sv,  "panfs"sv,      "pvfs2"sv,  "smb2"sv,
                                  "smb3"sv,  "smbfs"sv,     "snfs"sv,       "wekafs"sv};

/// After "fuse.".
constexpr std::array networkPrograms{"ceph"sv,      "ceph-fuse"sv, "cvmfs2"sv,
                                     "curlftpfs"sv, "davfs"sv,     "davfs2"sv,
                                     "gcsfuse"sv,   "glusterfs"sv, "hdfs"sv,
                                     "juicefs"sv,   "mfs"sv,       "rclone"sv,
                                     "s3fs"sv,      "s3ql"sv,      "smbnetfs"sv,
                                     "sshfs"sv,     "goofys"sv,    "google-drive-ocamlfuse"sv,
                                     "onedriver"sv};

constexpr std::array hostShares{
    "9p"sv, "drvfs"sv, "fuse.vmhgfs-fuse"sv, "prl_fs"sv, "vboxsf"sv, "virtiofs"sv, "vmhgfs"sv};

/// After "fuse.": drivers of disks.
constexpr std::array diskPrograms{"apfs"sv,    "apfs-fuse"sv,  "bcachefs"sv,   "exfat"sv,
                                  "ext2"sv,    "fuse-ext2"sv,  "fuse2fs"sv,    "fuseext2"sv,
                                  "hfsfuse"sv, "lklfuse"sv,    "lowntfs-3g"sv, "ntfs"sv,
                                  "ntfs-3g"sv, "exfat-fuse"sv, "zfs"sv,        "zfs-fuse"sv};

/// After "fuse.": folders of this machine put together to one, and encrypted ones. Not those that
/// show a folder as it is or an image's one file: the disk beneath is listed itself.
constexpr std::array folderPrograms{"cryfs"sv,  "encfs"sv,    "gocryptfs"sv, "mergerfs"sv,
                                    "mhddfs"sv, "securefs"sv, "unionfs"sv,   "unionfs-fuse"sv};

/// After "fuse.".
constexpr std::array pseudoPrograms{"gvfs-fuse-daemon"sv, "gvfsd-fuse"sv, "lxcfs"sv, "portal"sv,
                                    "xdg-document-portal"sv};

/// Those that manage their devices themselves and so have no device number of their own.
constexpr std::array localWithoutDevice{"apfs"sv, "bcachefs"sv, "btrfs"sv, "ubifs"sv, "zfs"sv};

template <class Names>
bool isAmong(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

FileSystemKind kindOf(const Mount& mount) {
    const std::string_view type = mount.type;
    if (isAmong(networkTypes, type)) return FileSystemKind::network;
    if (isAmong(hostShares, type)) return FileSystemKind::hostShare;
    if (type == "fuseblk" || type.starts_with("fuseblk.")) return FileSystemKind::served;
    // Served by the kernel, but from a folder that may lie anywhere.
    if (type == "ecryptfs") return FileSystemKind::served;
    constexpr std::string_view served = "fuse.";
    if (type == "fuse") return FileSystemKind::userSpace;
    if (type.starts_with(served)) {
        const std::string_view program = type.substr(served.size());
        if (isAmong(networkPrograms, program)) return FileSystemKind::network;
        if (isAmong(pseudoPrograms, program)) return FileSystemKind::userSpacePseudo;
        if (isAmong(diskPrograms, program)) return FileSystemKind::served;
        if (isAmong(folderPrograms, program)) return FileSystemKind::served;
        return FileSystemKind::userSpace;
    }
    const bool isLocal = mount.major != 0 || isAmong(localWithoutDevice, type);
    return isLocal ? FileSystemKind::local : FileSystemKind::pseudo;
}

}  // namespace vantor
