#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/threads/threaded_serial_queue.h"
#include "sampling/ended_program.h"
#include "sampling/fake_world.h"
#include "sampling/hanging_machine.h"
#include "support/named_row.h"
#include "support/threaded_main_loop.h"

/// A probe that hangs in the kernel costs its own thread and nothing else.
namespace vantor::hanging_probe_test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(HangingProbe, DoesNotHoldTheMonitorsEndUp) {
    HangingMachine hanging;
    auto queues = std::make_shared<ThreadedSerialQueueFactory>();
    auto loop = std::make_shared<ThreadedMainLoop>();
    auto settings = makeSettings();
    auto monitor = SystemMonitor::make(settings, hanging.machine, loop, queues);
    monitor->start();
    std::thread waiter([&] {
        hanging.waitUntilStuck();
        loop->stop();
    });
    loop->run();
    waiter.join();
    const auto before = Clock::now();
    monitor.reset();
    settings.reset();
    queues.reset();
    loop.reset();
    hanging.machine.reset();
    EXPECT_LT(Clock::now() - before, 500ms);
}

TEST(HangingProbe, DoesNotHoldTheSamplersEndUp) {
    HangingMachine hanging;
    auto queues = std::make_unique<ThreadedSerialQueueFactory>();
    auto sampler = SystemSampler::make(hanging.machine, *queues);
    sampler->requestCPU(1, true, [](const CPUStats*) {});
    hanging.waitUntilStuck();
    sampler->requestCPU(1, true, [](const CPUStats*) {});
    sampler->resetDeltaBaselines();
    const auto before = Clock::now();
    sampler.reset();
    queues.reset();
    EXPECT_LT(Clock::now() - before, 500ms);
}

TEST(HangingProbe, LeavesTheOtherProvidersAndTheMainThreadWorking) {
    HangingMachine hanging;
    ThreadedSerialQueueFactory queues;
    const auto sampler = SystemSampler::make(hanging.machine, queues);
    sampler->requestCPU(1, true, [](const CPUStats*) {});
    hanging.waitUntilStuck();
    std::promise<void> answered;
    sampler->requestPower(1, true, [&](const PowerReadResult&) { answered.set_value(); });
    EXPECT_EQ(answered.get_future().wait_for(10s), std::future_status::ready);
    EXPECT_EQ(sampler->gates().front()->outstandingRuns(), 1);
}

TEST(HangingProbe, InAGraphicsDriverLeavesTheOthersAndTheEndAlone) {
    HangingMachine hanging(HangingMachine::Call::graphics);
    auto queues = std::make_unique<ThreadedSerialQueueFactory>();
    auto sampler = SystemSampler::make(hanging.machine, *queues);
    sampler->requestGPUs(1, true, [](const std::optional<std::vector<GPUStats>>&) { FAIL(); });
    hanging.waitUntilStuck();
    std::promise<void> answered;
    sampler->requestPower(1, true, [&](const PowerReadResult&) { answered.set_value(); });
    EXPECT_EQ(answered.get_future().wait_for(10s), std::future_status::ready);
    const auto before = Clock::now();
    sampler.reset();
    queues.reset();
    EXPECT_LT(Clock::now() - before, 500ms);
}

struct EndRow : NamedRow {
    const char* path;
    Clock::duration limit = 1s;
};

class ProgramsEnd : public testing::TestWithParam<EndRow> {};

/// How long the program took from the end of its main to its own; the longest time there is when it
/// went wrong.
Clock::duration timeToEnd(const char* path) {
    Program program(path);
    EXPECT_TRUE(program.hasStarted());
    const std::string output = program.readToEnd(20s);
    const auto ended = Clock::now();
    EXPECT_FALSE(output.empty()) << "it never came to its end";
    const int status = program.wait();
    EXPECT_TRUE(WIFEXITED(status)) << "it was killed by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    if (output.empty()) return Clock::duration::max();
    // The program writes the time at which its main returned, on the clock that all processes
    // share.
    return ended - Clock::time_point{std::chrono::nanoseconds{std::stoll(output)}};
}

TEST_P(ProgramsEnd, IsCleanAndWaitsForNobody) {
    // Waiting would take long each time, a busy machine only now and then.
    auto shortest = Clock::duration::max();
    for (int attempt = 0; attempt < 3 && shortest >= GetParam().limit && !HasFailure(); ++attempt)
        shortest = std::min(shortest, timeToEnd(GetParam().path));
    EXPECT_LT(shortest, GetParam().limit);
}

INSTANTIATE_TEST_SUITE_P(WithAProbeThat, ProgramsEnd,
                         testing::Values(EndRow{{"Hangs"}, VANTOR_HANGING_END_PROGRAM},
                                         EndRow{{"HangsInAFileSystem"},
                                                VANTOR_HANGING_VOLUMES_END_PROGRAM},
                                         // Which waits at its end until all have answered often.
                                         EndRow{{"IsAtWork"}, VANTOR_BUSY_END_PROGRAM, 15s}),
                         rowName<EndRow>);

}  // namespace
}  // namespace vantor::hanging_probe_test
