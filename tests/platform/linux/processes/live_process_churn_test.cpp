#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <memory>
#include <new>
#include <thread>

#include "platform/linux/linux_machine.h"
#include "probes/process_reader.h"
#include "support/live_child.h"

/// Sweeps over a machine on which processes come and go all the time.
namespace vantor::live_process_churn_test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int birthsInAll = 3000;
constexpr std::size_t livingAtATime = 200;

/// The kernel charges time at ticks, and a virtual machine's processor may stand still meanwhile:
/// what the first pass does not see yet comes with a later one, in seconds per processor. Over all
/// passes together, no more than what was there can have been given out.
constexpr double latestCharge = 0.5;

/// A number that this process and its children share.
class SharedCount {
  public:
    using Count = std::atomic<int>;

    SharedCount()
        : count_(new (::mmap(nullptr, sizeof(Count), PROT_READ | PROT_WRITE,
                             MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Count(0)) {}
    SharedCount(const SharedCount&) = delete;
    SharedCount& operator=(const SharedCount&) = delete;
    ~SharedCount() { ::munmap(count_, sizeof(Count)); }

    Count& operator*() const { return *count_; }

  private:
    Count* count_;
};

void end(pid_t pid) {
    if (pid < 1) return;
    ::kill(pid, SIGKILL);
    ::waitpid(pid, nullptr, 0);
}

/// Bears one after another. Some end at once, the others when two hundred younger ones are there.
void breed(std::atomic<int>& births) {
    std::array<pid_t, livingAtATime> living{};
    for (int i = 0; i < birthsInAll; ++i) {
        pid_t& place = living[static_cast<std::size_t>(i) % livingAtATime];
        end(place);
        place = ::fork();
        if (place < 0) return;
        if (place == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (i % 3 == 0) ::_exit(0);
            for (;;)
                ::pause();
        }
        ++births;
    }
    for (const pid_t pid : living)
        end(pid);
    births = birthsInAll + 1;
}

std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// Returns the sum of the shares.
double expectPossible(const ProcessSample& sample) {
    double all = 0;
    std::int32_t last = 0;
    for (const ProcessStats& process : sample.all) {
        EXPECT_GT(process.pid, last) << "each once, ascending";
        last = process.pid;
        EXPECT_TRUE(std::isfinite(process.cpuPercent));
        EXPECT_GE(process.cpuPercent, 0);
        EXPECT_FALSE(process.name.string().empty());
        EXPECT_FALSE(process.command.string().empty());
        all += process.cpuPercent;
    }
    EXPECT_EQ(sample.sortedByCPU.size(), std::min<std::size_t>(18, sample.all.size()));
    EXPECT_EQ(sample.sortedByMemory.size(), std::min<std::size_t>(18, sample.all.size()));
    return all;
}

TEST(LiveProcessChurn, ThreeThousandBirthsAndDeathsMakeNoWrongShareAndLeaveNothingBehind) {
    const SharedCount births;
    ProcessReader reader(std::make_shared<LinuxMachine>());
    reader.read();
    const auto descriptors = openDescriptors();
    const double processors = static_cast<double>(::sysconf(_SC_NPROCESSORS_ONLN));
    int sweeps = 0;
    {
        const LiveChild breeder([&births] { breed(*births); });
        const auto start = Clock::now();
        reader.read();
        auto lastEnd = Clock::now();
        const auto limit = start + 90s;
        double spent = 0;
        while (*births <= birthsInAll && Clock::now() < limit) {
            std::this_thread::sleep_for(20ms);
            const auto begin = Clock::now();
            const ProcessSample sample = reader.read();
            const auto end = Clock::now();
            const double shares = expectPossible(sample);
            spent += shares / 100 * std::chrono::duration<double>(begin - lastEnd).count();
            const double passed = std::chrono::duration<double>(end - start).count();
            ASSERT_LE(spent, processors * (passed + latestCharge)) << "after sweep " << sweeps;
            lastEnd = end;
            ++sweeps;
        }
        ASSERT_EQ(*births, birthsInAll + 1) << "all were born";
    }
    const std::size_t living = reader.read().all.size();
    EXPECT_GE(sweeps, 5);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(reader.storage().metadataByPID.size(), living);
    EXPECT_EQ(reader.storage().previousCPUByPID.size(), living);
}

}  // namespace
}  // namespace vantor::live_process_churn_test
