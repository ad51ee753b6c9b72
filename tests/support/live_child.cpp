#include "support/live_child.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

namespace vantor {

using namespace std::chrono_literals;

LiveChild::LiveChild(const std::function<void()>& body) {
    const pid_t parent = ::getpid();
    std::fflush(nullptr);
    pid_ = ::fork();
    if (pid_ < 0) std::abort();  // as an identifier, -1 is everybody
    if (pid_ > 0) return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) ::_exit(0);
    if (body) body();
    for (;;)
        ::pause();
}

LiveChild::~LiveChild() {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
}

std::function<void()> LiveChild::running(const std::string& sleepProgram) {
    return [sleepProgram] {
        ::execl(sleepProgram.c_str(), "sleep", "1000", nullptr);
        ::_exit(1);
    };
}

bool LiveChild::waitUntilAsleepAs(const std::string& program) const {
    for (int i = 0; i < 10'000 && processFile(pid_, "comm") != program + "\n"; ++i)
        std::this_thread::sleep_for(1ms);
    return waitUntilAsleep();
}

bool LiveChild::becomeZombie() const {
    ::kill(pid_, SIGKILL);
    return waitForState('Z');
}

bool LiveChild::waitForState(char state) const {
    const auto limit = std::chrono::steady_clock::now() + 10s;
    while (std::chrono::steady_clock::now() < limit) {
        const std::string stat = processFile(pid_, "stat");
        const auto name = stat.rfind(") ");
        if (name != std::string::npos && stat[name + 2] == state) return true;
        std::this_thread::sleep_for(1ms);
    }
    return false;
}

std::string processFile(pid_t pid, const std::string& name) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace vantor
