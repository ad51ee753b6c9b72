#include "sleeping_children.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

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

}  // namespace vantor::bench
