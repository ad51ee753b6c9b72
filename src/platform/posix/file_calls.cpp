#include "platform/posix/file_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace vantor {

namespace {

constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

}  // namespace

int FileCalls::create(int folder, const char* name) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    return ::openat(folder, name, flags, ownerOnly);
}

ssize_t FileCalls::write(int file, const void* bytes, std::size_t count) {
    return ::write(file, bytes, count);
}

int FileCalls::lock(int file) {
    return ::flock(file, LOCK_EX | LOCK_NB);
}

int FileCalls::close(int file) {
    return ::close(file);
}

int FileCalls::changeOwner(int file, uid_t owner, gid_t group) {
    return ::fchown(file, owner, group);
}

int FileCalls::changeMode(int file, mode_t mode) {
    return ::fchmod(file, mode);
}

int FileCalls::rename(int folder, const char* from, const char* to) {
    return ::renameat(folder, from, folder, to);
}

int FileCalls::remove(int folder, const char* name) {
    return ::unlinkat(folder, name, 0);
}

}  // namespace vantor
