#include "platform/linux/storage/file_systems.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>

#include "platform/file_descriptor.h"

namespace vantor {

namespace {

std::optional<std::uint64_t> mountOf(int file) {
#ifdef STATX_MNT_ID
    struct statx answer = {};
    // Attributes of the file itself are not wanted, so that the file system is not asked for them.
    constexpr int flags = AT_EMPTY_PATH | AT_STATX_DONT_SYNC | AT_NO_AUTOMOUNT;
    if (::statx(file, "", flags, STATX_MNT_ID, &answer) == 0 &&
        (answer.stx_mask & STATX_MNT_ID) != 0) {
        return answer.stx_mnt_id;
    }
#else
    static_cast<void>(file);
#endif
    return std::nullopt;
}

/// Figures that contradict each other are left as they are, as is a file system of which nothing
/// would be left.
std::uint64_t blocksForEveryone(const struct statvfs& answer) {
    if (answer.f_bavail > answer.f_bfree || answer.f_bfree > answer.f_blocks)
        return answer.f_blocks;
    const std::uint64_t reserved = answer.f_bfree - answer.f_bavail;
    return reserved < answer.f_blocks ? answer.f_blocks - reserved : answer.f_blocks;
}

class LiveFileSystems : public FileSystems {
  public:
    std::optional<Space> space(const std::string& path) override {
        // One descriptor for both questions, so that they are about the same mount.
        const FileDescriptor place{::open(path.c_str(), O_PATH | O_CLOEXEC)};
        if (!place) return std::nullopt;
        struct statvfs answer = {};
        int result = 0;
        do {
            result = ::fstatvfs(place.get(), &answer);
        } while (result != 0 && errno == EINTR);
        if (result != 0) return std::nullopt;
        Space space = spaceIn(answer);
        space.mountID = mountOf(place.get());
        return space;
    }
};

}  // namespace

FileSystems::Space spaceIn(const struct statvfs& answer) {
    return {answer.f_frsize,
            blocksForEveryone(answer),
            answer.f_bavail,
            (answer.f_flag & ST_RDONLY) != 0,
            {}};
}

std::shared_ptr<FileSystems> makeLiveFileSystems() {
    return std::make_shared<LiveFileSystems>();
}

}  // namespace vantor
