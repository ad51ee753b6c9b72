#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <string>

#include "platform/posix/file_calls.h"

namespace vantor {

int FileCalls::openUnlisted(const char* path) {
    return ::open(path, O_DIRECTORY | O_CLOEXEC | O_PATH);
}

void FileCalls::withoutSizeSignal(const std::function<void()>& writing) {
    sigset_t signal{};
    sigset_t before{};
    sigemptyset(&signal);
    sigaddset(&signal, SIGXFSZ);
    ::pthread_sigmask(SIG_BLOCK, &signal, &before);
    writing();
    // It is sent to the thread that wrote: consumed here, it is not delivered later.
    const std::timespec noTime{};
    if (!sigismember(&before, SIGXFSZ)) ::sigtimedwait(&signal, nullptr, &noTime);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

int FileCalls::createNameless(int folder) {
    return ::openat(folder, ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

int FileCalls::sync(int file) {
    return ::fsync(file);
}

int FileCalls::link(int file, int folder, const char* name) {
    // The way that needs no privilege.
    const std::string open = "/proc/self/fd/" + std::to_string(file);
    return ::linkat(AT_FDCWD, open.c_str(), folder, name, AT_SYMLINK_FOLLOW);
}

}  // namespace vantor
