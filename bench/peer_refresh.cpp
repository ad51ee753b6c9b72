#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/processes/process_stat.h"
#include "platform/native_machine.h"
#include "probes/process_reader.h"

#include "processor_time.h"
#include "sleeping_children.h"

/// What one refresh costs per process: our pass, and two programs of the terminal that many people
/// have open all day, over the same sleeping processes in the same minute. Each is asked for one
/// refresh a second and charged its own CPU time, as the kernel counts it.
namespace vantor::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto settling = 3s;
constexpr int refreshes = 15;

/// User and system time of a process so far, in seconds; negative when it is gone.
double spentBy(pid_t pid) {
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto stat = ProcessStat::parse(text);
    if (!stat) return -1;
    return static_cast<double>(stat->userTicks + stat->systemTicks) /
           static_cast<double>(::sysconf(_SC_CLK_TCK));
}

/// A program in a terminal of its own, ended with this object.
class TerminalProgram {
  public:
    explicit TerminalProgram(const std::vector<const char*>& command) {
        struct winsize size = {50, 160, 0, 0};
        pid_ = ::forkpty(&terminal_, nullptr, nullptr, &size);
        if (pid_ == 0) {
            ::setenv("TERM", "xterm-256color", 1);
            ::setenv("LANG", "C.UTF-8", 1);
            std::vector<char*> arguments;
            for (const char* word : command)
                arguments.push_back(const_cast<char*>(word));
            arguments.push_back(nullptr);
            ::execvp(arguments.front(), arguments.data());
            std::_Exit(127);
        }
    }
    TerminalProgram(const TerminalProgram&) = delete;
    TerminalProgram& operator=(const TerminalProgram&) = delete;
    ~TerminalProgram() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        ::close(terminal_);
    }

    pid_t pid() const { return pid_; }

    /// Lets it draw for that long.
    void watch(std::chrono::milliseconds duration) const {
        ::fcntl(terminal_, F_SETFL, O_NONBLOCK);
        const auto end = std::chrono::steady_clock::now() + duration;
        std::array<char, 65536> screen{};
        while (std::chrono::steady_clock::now() < end) {
            while (::read(terminal_, screen.data(), screen.size()) > 0) {
            }
            std::this_thread::sleep_for(10ms);
        }
    }

  private:
    pid_t pid_ = -1;
    int terminal_ = -1;
};

/// Microseconds per process and refresh; negative when the program cannot be run.
double costOf(const std::vector<const char*>& command, std::size_t processes) {
    const TerminalProgram program(command);
    program.watch(settling);
    const double before = spentBy(program.pid());
    program.watch(std::chrono::seconds{refreshes});
    const double after = spentBy(program.pid());
    if (before < 0 || after < 0) return -1;
    return (after - before) / refreshes / static_cast<double>(processes) * 1e6;
}

double costOfOurs(std::size_t& processes) {
    ProcessReader reader(makeNativeMachine());
    double before = 0;
    auto next = std::chrono::steady_clock::now();
    for (int i = -3; i < refreshes; ++i) {
        if (i == 0) before = threadCPUSeconds();
        next += 1s;
        std::this_thread::sleep_until(next);
        processes = reader.read().all.size();
    }
    return (threadCPUSeconds() - before) / refreshes / static_cast<double>(processes) * 1e6;
}

bool report(const char* name, double cost, double ours, double factor) {
    if (cost < 0) {
        std::printf("%-28s not installed\n", name);
        return true;
    }
    const bool passes = cost >= factor * ours;
    std::printf("%-28s %10.2f %10.1f %10.1f  %s\n", name, cost, cost / ours, factor,
                passes ? "ok" : "TOO CLOSE");
    return passes;
}

int compare(int children) {
    const SleepingChildren sleepers(children);
    // Its settings are kept out of the user's own.
    std::string home = std::filesystem::temp_directory_path() / "vantor-bench-XXXXXX";
    if (!::mkdtemp(home.data())) return 2;
    ::setenv("XDG_CONFIG_HOME", home.c_str(), 1);
    ::setenv("HOME", home.c_str(), 1);
    std::filesystem::create_directories(home + "/btop");
    std::ofstream(home + "/btop/btop.conf") << "update_ms = 1000\n";
    std::size_t processes = 0;
    const double ours = costOfOurs(processes);
    const double htop = costOf({"htop", "-d", "10"}, processes);
    const double btop = costOf({"btop", "--utf-force"}, processes);
    std::filesystem::remove_all(home);
    std::printf("%zu processes, one refresh a second, own CPU time per process and refresh\n",
                processes);
    std::printf("%-28s %10s %10s %10s  %s\n", "refresh", "us", "times ours", "wanted", "verdict");
    std::printf("%-28s %10.2f %10s %10s  %s\n", "ProcessReader::read", ours, "1.0", "-", "-");
    const bool htopPasses = report("htop", htop, ours, 12);
    const bool btopPasses = report("btop", btop, ours, 4);
    return htopPasses && btopPasses ? 0 : 1;
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(argc > 1 ? std::atoi(argv[1]) : 3000);
}
