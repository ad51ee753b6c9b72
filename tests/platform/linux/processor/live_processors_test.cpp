#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <memory>
#include <string>

#include "platform/linux/linux_machine.h"
#include "probes/cpu_reader.h"

namespace vantor::live_processors_test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// The machine's ticks by another pipeline than the reader's: none of its parsing, folding or
/// deltas.
struct RawTimes {
    long long busy = 0;
    long long all = 0;

    bool operator==(const RawTimes&) const = default;

    static RawTimes now() {
        std::ifstream file("/proc/stat");
        std::string word;
        file >> word;
        std::array<long long, 8> times{};  // user nice system idle iowait irq softirq steal
        for (long long& time : times)
            file >> time;
        RawTimes raw;
        for (const long long time : times)
            raw.all += time;
        raw.busy = raw.all - times[3] - times[4];
        return raw;
    }
};

/// Keeps the calling thread on one of the processors that it may run on.
class PinnedThread {
  public:
    PinnedThread() {
        ::sched_getaffinity(0, sizeof before_, &before_);
        cpu_set_t one;
        CPU_ZERO(&one);
        for (std::size_t cpu = 0; cpu < CPU_SETSIZE; ++cpu) {
            if (!CPU_ISSET(cpu, &before_)) continue;
            CPU_SET(cpu, &one);
            break;
        }
        isPinned_ = ::sched_setaffinity(0, sizeof one, &one) == 0;
    }
    PinnedThread(const PinnedThread&) = delete;
    PinnedThread& operator=(const PinnedThread&) = delete;
    ~PinnedThread() { ::sched_setaffinity(0, sizeof before_, &before_); }

    explicit operator bool() const { return isPinned_; }

  private:
    cpu_set_t before_;
    bool isPinned_ = false;
};

void spin(std::chrono::milliseconds span) {
    for (const auto end = Clock::now() + span; Clock::now() < end;) {
    }
}

struct Measurement {
    double reader = 0;
    double raw = 0;
    std::size_t processors = 0;
    bool isUndisturbed = false;  ///< the kernel counted nothing while the two roads were read
};

Measurement measureBusyCore() {
    CPUReader reader(std::make_shared<LinuxMachine>());
    const PinnedThread pinned;
    EXPECT_TRUE(pinned);
    const RawTimes before = RawTimes::now();
    reader.read();
    const RawTimes started = RawTimes::now();
    spin(600ms);
    const RawTimes ending = RawTimes::now();
    const CPUStats* cpu = reader.read();
    const RawTimes after = RawTimes::now();
    if (!cpu) return {};
    const auto busy = static_cast<double>(ending.busy - before.busy);
    const auto all = static_cast<double>(ending.all - before.all);
    return {cpu->totalUsage, busy / all, cpu->perCoreUsage.size(),
            before == started && ending == after};
}

TEST(LiveProcessors, AgreeWithTheKernelsOwnFileWhileACoreIsBusy) {
    Measurement measured;
    for (int attempt = 0; attempt < 3 && !measured.isUndisturbed; ++attempt) {
        measured = measureBusyCore();
    }
    const auto online = ::sysconf(_SC_NPROCESSORS_ONLN);
    EXPECT_NEAR(measured.reader, measured.raw, 0.03);
    EXPECT_GT(measured.reader, 0.5 / static_cast<double>(online)) << "one core was kept busy";
    EXPECT_LE(measured.reader, 1.0);
    EXPECT_EQ(measured.processors, static_cast<std::size_t>(online));
}

TEST(LiveProcessors, GiveNothingForTwoReadsWithinOneTick) {
    CPUReader reader(std::make_shared<LinuxMachine>());
    reader.read();
    bool sawOne = false;
    for (int attempt = 0; attempt < 1000 && !sawOne; ++attempt)
        sawOne = reader.read() == nullptr;
    EXPECT_TRUE(sawOne);
}

TEST(LiveProcessors, HaveAnIdentity) {
    CPUReader reader(std::make_shared<LinuxMachine>());
    reader.read();
    const CPUStats* cpu = nullptr;
    const auto limit = Clock::now() + 5s;
    while (!cpu && Clock::now() < limit)
        cpu = reader.read();
    ASSERT_NE(cpu, nullptr);
    EXPECT_FALSE(cpu->model.empty());
    EXPECT_EQ(cpu->logicalCoreCount, ::sysconf(_SC_NPROCESSORS_ONLN));
    EXPECT_GE(cpu->physicalCoreCount, 1);
    EXPECT_LE(cpu->physicalCoreCount, cpu->logicalCoreCount);
    EXPECT_EQ(cpu->loadAverage.size(), 3U);
}

}  // namespace
}  // namespace vantor::live_processors_test
