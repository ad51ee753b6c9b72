#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string_view>
#include <thread>

#include "platform/file_descriptor.h"
#include "platform/linux/processes/pid_listing.h"
#include "platform/linux/processes/process_clocks.h"

#include "network_baseline.h"
#include "processor_time.h"
#include "sleeping_children.h"

/// `bare_asking KIND [ROUNDS]`: what the kernel takes to answer the questions that the program puts
/// at each tick, and nothing else. Asks twice a second, as the program does at its shortest
/// interval, and prints the CPU seconds of one asking, the kernel's part included, and what it
/// brought, so that a table of nothing is noticed.
///
/// KIND is "clocks" (list /proc and read the CPU clock of every process), "known-clocks" (the
/// clocks alone, of the processes of one listing), "links" (dump the counters of all links) or
/// "mounts" (read /proc/self/mountinfo).
namespace vantor::bench {
namespace {

constexpr int warmUp = 2;
constexpr auto interval = std::chrono::milliseconds(500);

/// Gives how much was answered, in processes or bytes.
using Asking = std::function<std::size_t()>;

class Clocks {
  public:
    bool list() { return listing_.read(proc_); }

    std::size_t read() {
        std::size_t answered = 0;
        for (const std::int32_t pid : listing_.pids()) {
            if (clocks_->read(pid)) ++answered;
        }
        return answered;
    }

  private:
    FileDescriptor proc_{::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    PIDListing listing_;
    std::shared_ptr<ProcessClocks> clocks_ = makeLiveProcessClocks();
};

std::size_t readMounts() {
    std::array<char, std::size_t{64} * 1024> buffer{};
    const FileDescriptor table{::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)};
    std::size_t length = 0;
    ssize_t count = 0;
    while ((count = ::read(table.get(), buffer.data(), buffer.size())) > 0)
        length += static_cast<std::size_t>(count);
    return length;
}

Asking askingFor(std::string_view kind) {
    if (kind == "mounts") return readMounts;
    if (kind == "links") {
        return [baseline = std::make_shared<NetworkBaseline>()] { return baseline->counters(); };
    }
    const auto clocks = std::make_shared<Clocks>();
    if (kind == "clocks") return [clocks] { return clocks->list() ? clocks->read() : 0; };
    if (kind == "known-clocks" && clocks->list()) return [clocks] { return clocks->read(); };
    return {};
}

int ask(const Asking& asking, int rounds) {
    double seconds = 0;
    std::size_t answered = 0;
    auto next = std::chrono::steady_clock::now();
    for (int i = 0; i < warmUp + rounds; ++i) {
        std::this_thread::sleep_until(next += interval);
        const double before = threadCPUSeconds();
        answered = asking();
        if (i >= warmUp) seconds += threadCPUSeconds() - before;
    }
    std::printf("%.9f\t%zu\n", seconds / rounds, answered);
    return answered > 0 ? 0 : 1;
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    using namespace vantor::bench;
    const Asking asking = askingFor(argc > 1 ? argv[1] : "");
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 20;
    if (asking && rounds > 0) return ask(asking, rounds);
    std::fprintf(stderr, "bare_asking clocks|known-clocks|links|mounts [ROUNDS]\n");
    return 2;
}
