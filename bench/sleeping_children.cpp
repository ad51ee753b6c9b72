#include "sleeping_children.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <ctime>

namespace vantor::bench {

SleepingChildren::SleepingChildren(int count) {
    const pid_t self = ::getpid();
    for (int i = 0; i < count; ++i) {
        const pid_t pid = ::fork();
        if (pid < 0) break;
        if (pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (::getppid() != self) std::_Exit(0);
            for (;;)
                ::pause();
        }
        pids_.push_back(pid);
    }
}

SleepingChildren::~SleepingChildren() {
    for (const pid_t pid : pids_)
        ::kill(pid, SIGKILL);
    for (const pid_t pid : pids_)
        ::waitpid(pid, nullptr, 0);
}

double threadCPUSeconds() {
    struct timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace vantor::bench
