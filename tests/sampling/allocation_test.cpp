#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <semaphore>
#include <string>

#include "platform/linux/linux_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/any_provider.h"
#include "sampling/counted_allocations.h"
#include "sampling/counted_passes.h"

/// A program that watches memory must not churn it: the steady state of a reading allocates
/// nothing.
namespace vantor::allocation_test {
namespace {

using namespace std::chrono_literals;

/// A machine on disk whose two processors move on at each step.
class RecordedMachine {
  public:
    RecordedMachine() {
        std::string pattern = std::filesystem::temp_directory_path() / "vantor-allocations-XXXXXX";
        root_ = ::mkdtemp(pattern.data());
        std::ofstream(root_ / "loadavg") << "0.50 0.25 0.12 1/100 4242\n";
        stat_.open(root_ / "stat");
        step();
    }
    RecordedMachine(const RecordedMachine&) = delete;
    RecordedMachine& operator=(const RecordedMachine&) = delete;
    ~RecordedMachine() { std::filesystem::remove_all(root_); }

    LinuxRoots roots() const { return {root_, root_, root_, root_}; }

    void step() {
        ++ticks_;
        stat_.seekp(0);
        for (const char* name : {"cpu ", "cpu0", "cpu1"}) {
            stat_ << name << ' ' << 100000 + 3 * ticks_ << " 0 " << 100000 + ticks_ << ' '
                  << 100000 + 6 * ticks_ << " 0 0 0 0 0 0\n";
        }
        stat_.flush();
    }

  private:
    std::filesystem::path root_;
    std::ofstream stat_;
    int ticks_ = 0;
};

TEST(Allocations, AreCounted) {
    // Calls, not new-expressions: those a compiler may leave out.
    EXPECT_EQ(allocationsOf([] { ::operator delete(::operator new(8)); }), std::size_t{passes});
}

TEST(Allocations, OfAProcessorReadingOnARecordedMachineAreNone) {
    RecordedMachine recorded;
    CPUReader reader(std::make_shared<LinuxMachine>(recorded.roots()));
    int usages = 0;
    const std::size_t allocations = allocationsOf([&] {
        recorded.step();
        const CPUStats* const stats = reader.read();
        if (stats && stats->perCoreUsage.size() == 2 && stats->loadAverage.size() == 3) ++usages;
    });
    EXPECT_EQ(allocations, 0u);
    EXPECT_EQ(usages, warmUp + passes - 1);
}

TEST(Allocations, OfAProcessorReadingOnThisMachineAreNone) {
    CPUReader reader(std::make_shared<LinuxMachine>());
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    const auto isOver = [&] { return std::chrono::steady_clock::now() > deadline; };
    // Only a reading that found a tick goes the whole way, and the kernel's ticks are slow.
    int usages = 0;
    while (usages < 3 && !isOver())
        usages += reader.read() ? 1 : 0;
    const std::size_t before = countedAllocations();
    int reads = 0;
    for (usages = 0; (reads < passes || usages < 10) && !isOver(); ++reads) {
        usages += reader.read() ? 1 : 0;
    }
    EXPECT_EQ(countedAllocations() - before, 0u);
    EXPECT_GE(reads, passes);
    EXPECT_GE(usages, 10);
}

struct Road {
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    ThreadedSerialQueueFactory queues;
    std::shared_ptr<SystemSampler> sampler;
    std::binary_semaphore answered{0};
    int usages = 0;

    Road() {
        machine->hostProcessors().growth = {1, 1, 1, 1};
        sampler = SystemSampler::make(machine, queues);
    }
    ~Road() {
        sampler.reset();
        EXPECT_TRUE(queues.waitForThreads(20s));
    }
};

TEST(Allocations, FromRequestToCompletionAreNone) {
    Road pipeline;
    const auto pass = [&pipeline] {
        pipeline.sampler->requestCPU(0.5, true, [&pipeline](const CPUStats* stats) {
            if (stats) ++pipeline.usages;
            pipeline.answered.release();
        });
        pipeline.answered.acquire();
    };
    EXPECT_EQ(allocationsOf(pass), 0u);
    EXPECT_EQ(pipeline.usages, warmUp + passes - 1);
}

TEST(Allocations, OfACompletionAsLargeAsTheMonitorsAreNone) {
    Road pipeline;
    // Two owners, a member function and a generation, as in the monitor's deliveries.
    const std::weak_ptr<int> owner;
    const std::shared_ptr<int> loop;
    const auto pass = [&] {
        pipeline.sampler->requestCPU(
            0.5, true,
            [owner, loop, &pipeline, spare = std::array<std::uint64_t, 2>{}](const CPUStats*) {
                static_cast<void>(spare);
                pipeline.answered.release();
            });
        pipeline.answered.acquire();
    };
    EXPECT_EQ(allocationsOf(pass), 0u);
}

TEST(Allocations, OfARefusedRequestAreNone) {
    Road pipeline;
    requestProvider(*pipeline.sampler, 0, 1, false, [&pipeline] { pipeline.answered.release(); });
    pipeline.answered.acquire();
    // The clock stands still: every later unforced request comes too early.
    EXPECT_EQ(
        allocationsOf([&pipeline] { requestProvider(*pipeline.sampler, 0, 1, false, [] {}); }), 0u);
}

}  // namespace
}  // namespace vantor::allocation_test
