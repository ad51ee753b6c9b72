#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <thread>

#include "platform/linux/linux_machine.h"
#include "probes/process_reader.h"
#include "support/burner.h"

/// Shares and sizes against what children of this test know of themselves.
namespace vantor::live_processes_test {
namespace {

using namespace std::chrono_literals;

double uptime() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

int usableProcessors() {
    cpu_set_t usable;
    return ::sched_getaffinity(0, sizeof usable, &usable) == 0 ? CPU_COUNT(&usable) : 1;
}

/// The row of `pid`; one that no test expects when there is none.
ProcessStats rowOf(const ProcessSample& sample, pid_t pid) {
    for (const ProcessStats& process : sample.all) {
        if (process.pid == pid) return process;
    }
    ProcessStats none;
    none.cpuPercent = -1;
    return none;
}

/// A share as read, and as the kernel's books of each thread and the time bound it.
struct Share {
    double read = 0;
    double lowest = 0;
    double highest = 0;
    double given = 0;  ///< what the child has got by its own clocks
};

/// One pass of the reader, and what was so before and after it.
struct Pass {
    Pass(ProcessReader& reader, const Burner& burner)
        : spent(burner.spent()),
          chargedBefore(burner.charged()),
          timeBefore(uptime()),
          sample(reader.read()),
          timeAfter(uptime()),
          chargedAfter(burner.charged()) {}

    double spent, chargedBefore, timeBefore;
    ProcessSample sample;
    double timeAfter, chargedAfter;
};

Share measureBurner(int threads) {
    const Burner burner(threads);
    ProcessReader reader(std::make_shared<LinuxMachine>());
    const Pass first(reader, burner);
    std::this_thread::sleep_for(1s);
    const Pass second(reader, burner);
    Share share;
    share.read = rowOf(second.sample, burner.pid()).cpuPercent;
    share.lowest =
        100 * (second.chargedBefore - first.chargedAfter) / (second.timeAfter - first.timeBefore);
    share.highest =
        100 * (second.chargedAfter - first.chargedBefore) / (second.timeBefore - first.timeAfter);
    share.given = 100 * (second.spent - first.spent) / (second.timeBefore - first.timeBefore);
    return share;
}

/// The share is always within what the kernel charged. What the child has got by its own clocks is
/// the same on a quiet machine only, so a quieter second is waited for a few times.
void expectShareOfBurner(int threads, double full, double tolerance) {
    Share share;
    for (int attempt = 0; attempt < 4 && share.given < 0.97 * full; ++attempt) {
        share = measureBurner(threads);
        EXPECT_GE(share.read, share.lowest - 0.01);
        EXPECT_LE(share.read, share.highest + 0.01);
    }
    std::printf("read %.2f %%, given %.2f %%\n", share.read, share.given);
    if (share.given >= 0.97 * full) {
        EXPECT_NEAR(share.read, full, tolerance);
    }
}

TEST(LiveProcesses, AChildThatBurnsOneCoreHasAShareOfAHundred) {
    expectShareOfBurner(1, 100, 6);
}

TEST(LiveProcesses, FourBurningThreadsHaveWhatTheProcessorsGive) {
    const int processors = std::min(4, usableProcessors());
    expectShareOfBurner(4, 100.0 * processors, 6.0 * processors);
}

TEST(LiveProcesses, AChildThatSleepsHasNone) {
    // Another program: in this one, a sanitizer's own thread would wake up now and then.
    const LiveChild child(LiveChild::running("/bin/sleep"));
    ASSERT_TRUE(child.waitUntilAsleepAs("sleep"));
    ProcessReader reader(std::make_shared<LinuxMachine>());
    std::this_thread::sleep_for(100ms);
    reader.read();
    for (int pass = 0; pass < 3; ++pass) {
        std::this_thread::sleep_for(500ms);
        EXPECT_EQ(rowOf(reader.read(), child.pid()).cpuPercent, 0.0);
    }
}

std::uint64_t residentBytes(pid_t pid) {
    std::istringstream statm(processFile(pid, "statm"));
    std::uint64_t size = 0, resident = 0;
    statm >> size >> resident;
    return resident * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

/// Sizes of a sleeping child; the kernel may take pages from it between the two readings.
void expectResidentSize(ProcessReader& reader, pid_t pid) {
    std::uint64_t before = 0, read = 0, after = 1;
    for (int attempt = 0; attempt < 5 && before != after; ++attempt) {
        before = residentBytes(pid);
        read = rowOf(reader.read(), pid).residentMemoryBytes;
        after = residentBytes(pid);
    }
    ASSERT_EQ(before, after);
    EXPECT_EQ(read, before);
}

/// Touches pages that it keeps.
void grow(std::size_t bytes) {
    void* const memory =
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) ::_exit(1);
    std::memset(memory, 1, bytes);
}

TEST(LiveProcesses, TheResidentSizeIsStatmsToTheByte) {
    constexpr std::size_t large = std::size_t{37} << 20;
    const LiveChild child([] { grow(large); });
    const LiveChild another;
    ASSERT_TRUE(child.waitUntilAsleep());
    ASSERT_TRUE(another.waitUntilAsleep());
    ProcessReader reader(std::make_shared<LinuxMachine>());
    reader.read();
    for (int pass = 0; pass < 5; ++pass) {
        std::this_thread::sleep_for(50ms);
        expectResidentSize(reader, child.pid());
        expectResidentSize(reader, another.pid());
    }
    EXPECT_GE(residentBytes(child.pid()), residentBytes(another.pid()) + large);
}

TEST(LiveProcesses, TheResidentSizeFollowsAChildThatGrows) {
    int line[2] = {-1, -1};
    ASSERT_EQ(::pipe(line), 0);
    const LiveChild child([&line] {
        for (char order = 0; ::read(line[0], &order, 1) == 1;)
            grow(std::size_t{5} << 20);
    });
    ProcessReader reader(std::make_shared<LinuxMachine>());
    std::uint64_t last = 0;
    for (int pass = 0; pass < 4; ++pass) {
        ASSERT_TRUE(child.waitUntilAsleep());
        std::this_thread::sleep_for(20ms);
        reader.read();
        expectResidentSize(reader, child.pid());
        const std::uint64_t size = residentBytes(child.pid());
        EXPECT_GE(size, last + (std::uint64_t{pass > 0 ? 4U : 0U} << 20));
        last = size;
        ASSERT_EQ(::write(line[1], "g", 1), 1);
        std::this_thread::sleep_for(50ms);
    }
    ::close(line[0]);
    ::close(line[1]);
}

}  // namespace
}  // namespace vantor::live_processes_test
