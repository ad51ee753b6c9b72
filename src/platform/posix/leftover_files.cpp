#include "platform/posix/leftover_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

#include "platform/file_descriptor.h"
#include "platform/posix/temporary_file.h"

namespace vantor::LeftoverFiles {

namespace {

struct ListingEnd {
    void operator()(DIR* listing) const { ::closedir(listing); }
};

using Listing = std::unique_ptr<DIR, ListingEnd>;

Listing list(int folder) {
    const int own = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Listing listing(own >= 0 ? ::fdopendir(own) : nullptr);
    if (!listing && own >= 0) ::close(own);
    return listing;
}

bool isLeftover(const struct stat& file, std::time_t now) {
    return S_ISREG(file.st_mode) && file.st_uid == ::geteuid() && file.st_nlink == 1 &&
           now - file.st_mtime > minLeftoverAge;
}

void removeIfLeft(FileCalls& calls, int folder, const char* name, std::time_t now) {
    struct stat seen {};
    // Opening a device or a pipe would do something to it.
    if (::fstatat(folder, name, &seen, AT_SYMLINK_NOFOLLOW) != 0 || !isLeftover(seen, now)) return;
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor file(::openat(folder, name, flags));
    if (!file || calls.lock(file.get()) != 0) return;
    // Whether it is still the same one, now that no writer can begin with it.
    struct stat locked {};
    struct stat named {};
    if (::fstat(file.get(), &locked) != 0 || !isLeftover(locked, now)) return;
    if (::fstatat(folder, name, &named, AT_SYMLINK_NOFOLLOW) != 0) return;
    if (named.st_dev != locked.st_dev || named.st_ino != locked.st_ino) return;
    calls.remove(folder, name);
}

}  // namespace

void remove(FileCalls& calls, int folder, std::time_t now, std::size_t entries) {
    const Listing listing = list(folder);
    if (!listing) return;
    const auto end = std::chrono::steady_clock::now() + maxLookTime;
    for (std::size_t i = 0; i < entries && std::chrono::steady_clock::now() < end; ++i) {
        const dirent* const entry = ::readdir(listing.get());
        if (!entry) return;
        if (TemporaryFile::isPassingName(entry->d_name))
            removeIfLeft(calls, folder, entry->d_name, now);
    }
}

}  // namespace vantor::LeftoverFiles
