#include "platform/linux/processor/linux_host_processors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "support/fake_kernel_tree.h"

namespace vantor::linux_host_processors_test {
namespace {

using testing::ElementsAre;
using Words = std::vector<std::uint32_t>;

class LinuxHostProcessorsTest : public testing::Test {
  protected:
    void say(const std::string& stat) { tree.proc("stat", stat + "intr 1 0\n"); }

    std::optional<Words> totals() {
        const auto port = host.acquirePort();
        std::array<std::uint32_t, 4> counters{};
        const auto count = host.totalTicks(port, counters);
        host.releasePort(port);
        if (!count) return std::nullopt;
        return Words(counters.begin(), counters.begin() + static_cast<std::ptrdiff_t>(*count));
    }

    std::optional<Words> processors() {
        const auto port = host.acquirePort();
        const auto array = host.processorTicks(port);
        host.releasePort(port);
        if (!array) return std::nullopt;
        EXPECT_EQ(array->wordCount, array->processorCount * 4);
        return Words(array->words, array->words + array->wordCount);
    }

    /// What the counters of each place grew by since the last call.
    Words growth() {
        const Words now = processors().value_or(Words{});
        Words grown(now.size());
        for (std::size_t i = 0; i < now.size(); ++i)
            grown[i] = now[i] - (i < last.size() ? last[i] : 0);
        last = now;
        return grown;
    }

    FakeKernelTree tree;
    LinuxHostProcessors host{tree.roots()};
    Words last;
};

TEST_F(LinuxHostProcessorsTest, GivesUserSystemIdleAndNiceInThisOrder) {
    say("cpu  1 2 3 4 5 6 7 8 0 0\n");
    EXPECT_EQ(totals(), (Words{1, 24, 9, 2}));
}

TEST_F(LinuxHostProcessorsTest, FillsNoMoreCountersThanThereIsRoomFor) {
    say("cpu  1 2 3 4\n");
    std::array<std::uint32_t, 3> counters{};
    const auto port = host.acquirePort();
    EXPECT_EQ(host.totalTicks(port, std::span(counters).first(2)), 2U);
    EXPECT_THAT(counters, ElementsAre(1, 3, 0));
    host.releasePort(port);
}

TEST_F(LinuxHostProcessorsTest, GivesTheLowWordsOfLargeCounters) {
    say("cpu  4294967296 0 0 8589934599\n");
    EXPECT_EQ(totals(), (Words{0, 0, 7, 0}));
}

TEST_F(LinuxHostProcessorsTest, ReadsTheFileOncePerPort) {
    say("cpu  10 0 0 0\ncpu0 10 0 0 0\n");
    growth();
    const auto port = host.acquirePort();
    std::array<std::uint32_t, 4> counters{};
    host.totalTicks(port, counters);
    say("cpu  99 0 0 0\ncpu0 99 0 0 0\n");
    const auto array = host.processorTicks(port);
    ASSERT_TRUE(array);
    EXPECT_EQ(array->words[0], last[0]) << "the processors are of the same moment as the totals";
    host.releasePort(port);
    EXPECT_EQ(growth(), (Words{89, 0, 0, 0}));
}

TEST_F(LinuxHostProcessorsTest, MayBeAskedForTheProcessorsAlone) {
    say("cpu  10 0 0 0\ncpu0 10 0 0 0\n");
    EXPECT_TRUE(processors());
}

TEST_F(LinuxHostProcessorsTest, FailsWithoutTheFileUntilItAppears) {
    EXPECT_EQ(totals(), std::nullopt);
    EXPECT_EQ(processors(), std::nullopt);
    say("cpu  1 2 3 4\ncpu0 1 2 3 4\n");
    EXPECT_NE(totals(), std::nullopt);
    EXPECT_NE(processors(), std::nullopt);
}

TEST_F(LinuxHostProcessorsTest, EachPlaceGrowsByWhatItsProcessorDid) {
    say("cpu  0 0 0 0\ncpu0 100 0 0 200\ncpu3 300 1 2 400\n");
    growth();
    say("cpu  0 0 0 0\ncpu0 105 0 0 295\ncpu3 300 11 22 470\n");
    EXPECT_EQ(growth(), (Words{5, 0, 95, 0, 0, 20, 70, 10}));
}

TEST_F(LinuxHostProcessorsTest, AProcessorThatTookAnothersPlaceHasDoneNothingYet) {
    say("cpu  0 0 0 0\ncpu0 100 0 0 200\ncpu1 5 0 0 6\n");
    growth();
    say("cpu  0 0 0 0\ncpu0 110 0 0 290\ncpu2 70000 0 0 80000\n");
    EXPECT_EQ(growth(), (Words{10, 0, 90, 0, 0, 0, 0, 0}));
    say("cpu  0 0 0 0\ncpu0 120 0 0 380\ncpu2 70060 0 0 80040\n");
    EXPECT_EQ(growth(), (Words{10, 0, 90, 0, 60, 0, 40, 0}));
}

TEST_F(LinuxHostProcessorsTest, AProcessorThatWasAwayHasDoneNothingOnItsReturn) {
    say("cpu  0 0 0 0\ncpu0 1 0 0 1\ncpu1 500 0 0 500\n");
    growth();
    say("cpu  0 0 0 0\ncpu0 2 0 0 2\ncpu2 9 0 0 9\n");
    growth();
    say("cpu  0 0 0 0\ncpu0 3 0 0 3\ncpu1 900 0 0 900\n");
    EXPECT_EQ(growth(), (Words{1, 0, 1, 0, 0, 0, 0, 0}));
}

TEST_F(LinuxHostProcessorsTest, ASmallStepBackOfIdleTimeHolds) {
    say("cpu  50 0 0 5000\ncpu0 50 0 0 5000\n");
    totals();
    growth();
    say("cpu  60 0 0 4997\ncpu0 60 0 0 4997\n");
    EXPECT_EQ(totals(), (Words{60, 0, 5000, 0}));
    EXPECT_EQ(growth(), (Words{10, 0, 0, 0}));
    say("cpu  60 0 0 5004\ncpu0 60 0 0 5004\n");
    EXPECT_EQ(totals(), (Words{60, 0, 5004, 0}));
    EXPECT_EQ(growth(), (Words{0, 0, 4, 0}));
}

// With the idle time of the interval unknown, its busy time alone would read as 100 %.
TEST_F(LinuxHostProcessorsTest, ARestartOfIdleTimeHoldsAllFourCounters) {
    say("cpu  50 0 0 90000\ncpu0 50 0 0 90000\n");
    totals();
    growth();
    say("cpu  80 7 9 12\ncpu0 80 7 9 12\n");
    EXPECT_EQ(totals(), (Words{50, 0, 90000, 0}));
    EXPECT_EQ(growth(), (Words{0, 0, 0, 0}));
    say("cpu  85 8 11 32\ncpu0 85 8 11 32\n");
    EXPECT_EQ(totals(), (Words{55, 2, 90020, 1}));
    EXPECT_EQ(growth(), (Words{5, 2, 20, 1}));
}

TEST_F(LinuxHostProcessorsTest, ADamagedListOfProcessorsFailsWithoutTheTotals) {
    say("cpu  1 2 3 4\ncpu0 1 2 3\n");
    EXPECT_NE(totals(), std::nullopt);
    EXPECT_EQ(processors(), std::nullopt);
}

TEST_F(LinuxHostProcessorsTest, AProcessorNumberPastAnyMachinesIsDamage) {
    say("cpu  1 2 3 4\ncpu65535 1 2 3 4\n");
    EXPECT_NE(processors(), std::nullopt);
    say("cpu  1 2 3 4\ncpu65536 1 2 3 4\n");
    EXPECT_EQ(processors(), std::nullopt);
}

TEST_F(LinuxHostProcessorsTest, GrowthGoesOnAfterADamagedReading) {
    say("cpu  0 0 0 0\ncpu0 100 0 0 200\n");
    growth();
    say("cpu  0 0 0 0\ncpu0 103 0 0\n");
    EXPECT_EQ(processors(), std::nullopt);
    say("cpu  0 0 0 0\ncpu0 110 0 0 290\n");
    EXPECT_EQ(growth(), (Words{10, 0, 90, 0}));
}

}  // namespace
}  // namespace vantor::linux_host_processors_test
