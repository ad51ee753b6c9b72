#include <sched.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// Enough for three calls, each of which has been found when the program was loaded (see e2e.cmake).
constexpr std::size_t stackSize = 4096;

int sleepForEver(void* parent) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != *static_cast<pid_t*>(parent)) ::_exit(0);
    for (;;)
        ::pause();
}

}  // namespace

/// process_crowd COUNT: so many processes that sleep, until its input ends; says "ready" when all
/// are there. They share one memory, as ten thousand of their own would take a gigabyte of page
/// tables.
int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    pid_t self = ::getpid();
    std::vector<char> stacks(static_cast<std::size_t>(count) * stackSize + 16);
    std::vector<pid_t> children;
    for (int i = 0; i < count; ++i) {
        char* const top = stacks.data() + (static_cast<std::size_t>(i) + 1) * stackSize;
        const pid_t pid = ::clone(sleepForEver, top - reinterpret_cast<std::uintptr_t>(top) % 16,
                                  CLONE_VM | CLONE_FS | CLONE_FILES | SIGCHLD, &self);
        if (pid < 0) break;
        children.push_back(pid);
    }
    std::printf("%s\n", children.size() == static_cast<std::size_t>(count) ? "ready" : "too few");
    std::fflush(stdout);
    char rest[64];
    while (::read(STDIN_FILENO, rest, sizeof rest) > 0) {
    }
    for (const pid_t pid : children)
        ::kill(pid, SIGKILL);
    for (const pid_t pid : children)
        ::waitpid(pid, nullptr, 0);
}
