#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "platform/posix/file_calls.h"

namespace vantor {

int FileCalls::openUnlisted(const char* path) {
    // Systems that do not know the flag take the folder for one to be listed, and refuse.
    return ::open(path, O_SEARCH | O_CLOEXEC);
}

void FileCalls::withoutSizeSignal(const std::function<void()>& writing) {
    // It is sent to the whole program here, and any thread may meet it: it is ignored for good.
    ::signal(SIGXFSZ, SIG_IGN);
    writing();
}

int FileCalls::createNameless(int) {
    errno = ENOTSUP;
    return -1;
}

int FileCalls::sync(int file) {
    // fsync alone leaves the bytes in the disk's own memory; but not every file system can wait
    // for more than that.
    const int result = ::fcntl(file, F_FULLFSYNC);
    return result != -1 || errno == EINTR ? result : ::fsync(file);
}

int FileCalls::link(int, int, const char*) {
    errno = ENOTSUP;
    return -1;
}

}  // namespace vantor
