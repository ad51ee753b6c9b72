#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>

#include "platform/linux/processes/pid_listing.h"
#include "platform/native_machine.h"
#include "probes/process_reader.h"

#include "processor_time.h"
#include "sleeping_children.h"
#include "verdict.h"

/// Compares a pass over all processes with the plainest sweep: list /proc, and open, read and close
/// each stat file. Both run over the same sleeping children, once per interval each as a monitor
/// would, and are charged the CPU time that they spend, the kernel's part included. Exits with 1
/// when a pass costs too much.
namespace vantor::bench {
namespace {

constexpr double ratioLimit = 0.30;
constexpr int warmUp = 8;

class PlainSweep {
  public:
    std::size_t run() {
        if (!listing_.read(proc_)) return 0;
        std::size_t read = 0;
        for (const std::int32_t pid : listing_.pids()) {
            std::array<char, 32> path{};
            std::snprintf(path.data(), path.size(), "%d/stat", pid);
            const FileDescriptor file{::openat(proc_.get(), path.data(), O_RDONLY | O_CLOEXEC)};
            if (file && ::read(file.get(), buffer_.data(), buffer_.size()) > 0) ++read;
        }
        return read;
    }

  private:
    FileDescriptor proc_{::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    PIDListing listing_;
    std::array<char, 4096> buffer_{};
};

/// The CPU time of a pass per process, summed up: what is done only now and then counts with its
/// share.
class PassCost {
  public:
    explicit PassCost(std::function<std::size_t()> pass) : pass_(std::move(pass)) {}

    void run() {
        const double before = threadCPUSeconds();
        const std::size_t processes = pass_();
        const double spent = threadCPUSeconds() - before;
        if (++runs_ <= warmUp || processes == 0) return;
        sum_ += spent * 1e9 / static_cast<double>(processes);
    }
    double mean() const { return sum_ / (runs_ - warmUp); }

  private:
    std::function<std::size_t()> pass_;
    int runs_ = 0;
    double sum_ = 0;
};

int compare(Form form, int children, int passes, std::chrono::milliseconds interval) {
    const SleepingChildren sleepers(children);
    PlainSweep sweep;
    ProcessReader reader(makeNativeMachine());
    PassCost plainCost([&] { return sweep.run(); });
    PassCost passCost([&] { return reader.read().all.size(); });
    // In turns, half an interval apart: a machine that becomes slower does so for both.
    auto next = std::chrono::steady_clock::now();
    for (int i = 0; i < warmUp + passes; ++i) {
        for (PassCost* const cost : {&plainCost, &passCost}) {
            std::this_thread::sleep_until(next += interval / 2);
            cost->run();
        }
    }
    const double plain = plainCost.mean();
    const double pass = passCost.mean();
    const double ratio = pass / plain;
    std::printf("%d sleeping processes, one pass each %lld ms, CPU time in ns per process\n",
                children, static_cast<long long>(interval.count()));
    std::printf("%-36s %10s %8s %8s  %s\n", "pass", "ns", "ratio", "limit", "verdict");
    std::printf("%-36s %10.0f %8s %8s  %s\n", "readdir, open-read-close each stat", plain, "1.00",
                "-", "-");
    std::printf("%-36s %10.0f %8.2f %8.2f  %s\n", "ProcessReader::read", pass, ratio, ratioLimit,
                ratio <= ratioLimit ? "ok" : "TOO MUCH");
    tellResult("ProcessReader::read", ratio, ratioLimit, ratio <= ratioLimit);
    return form.status(ratio <= ratioLimit);
}

int number(char** arguments, int count, int place, int otherwise) {
    return place < count ? std::atoi(arguments[place]) : otherwise;
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    using namespace vantor::bench;
    const Form form(argc, argv);
    if (form.isShort()) return compare(form, 1500, 8, std::chrono::milliseconds{400});
    return compare(form, number(argv, argc, 1, 3000), number(argv, argc, 2, 30),
                   std::chrono::milliseconds{number(argv, argc, 3, 1000)});
}
