#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/linux/linux_machine.h"
#include "probes/cpu_reader.h"
#include "support/fake_kernel_tree.h"

namespace vantor::recorded_proc_stat_test {
namespace {

using testing::DoubleEq;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string recording(const std::string& name) {
    std::ifstream file(VANTOR_TESTS_DIR "/fixtures/proc_stat/" + name, std::ios::binary);
    if (!file) throw std::runtime_error("no recording " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A reader on a machine whose /proc/stat is one recording after the other.
class RecordedProcStat : public testing::Test {
  protected:
    const CPUStats* read(const std::string& name) {
        tree_.proc("stat", recording(name));
        return reader_.read();
    }

  private:
    FakeKernelTree tree_;
    CPUReader reader_{std::make_shared<LinuxMachine>(tree_.roots())};
};

// In the second between the two recordings: cpu0 50 user and 50 idle; cpu1 20 system, 5 softirq,
// 70 idle and 5 iowait; cpu3 100 nice; cpu6 100 idle. cpu2, 4, 5 and 7 are offline.
TEST_F(RecordedProcStat, OfflineProcessorsLeaveNoGapsInTheShares) {
    EXPECT_EQ(read("offline_processors.first"), nullptr);
    const CPUStats* cpu = read("offline_processors.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 175.0 / 400);
    EXPECT_DOUBLE_EQ(cpu->userUsage, 150.0 / 400);
    EXPECT_DOUBLE_EQ(cpu->systemUsage, 25.0 / 400);
    EXPECT_DOUBLE_EQ(cpu->idleUsage, 225.0 / 400);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.5, 0.25, 1, 0));
}

// cpu2 did 10 user and 15 idle before it went; the others 25 user and 75 idle. Then cpu0 100 user,
// cpu1 100 idle, cpu3 40 steal and 60 idle.
TEST_F(RecordedProcStat, AProcessorThatWentOfflineEmptiesTheListForOneRead) {
    EXPECT_EQ(read("processor_went_offline.first"), nullptr);
    const CPUStats* cpu = read("processor_went_offline.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 85.0 / 325);
    EXPECT_THAT(cpu->perCoreUsage, IsEmpty());
    cpu = read("processor_went_offline.third");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 140.0 / 300);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(1, 0, 0.4));
}

// cpu0 100 user and 2 ticks of idle taken back, cpu1 97 user and 3 taken back: nothing was idle.
// Then 60 user and 42 idle, of which 2 make up; 50 user and 53 idle, of which 3 make up.
TEST_F(RecordedProcStat, AnIdleCounterThatStepsBackIsNotTakenForAWrap) {
    EXPECT_EQ(read("idle_stepped_back.first"), nullptr);
    const CPUStats* cpu = read("idle_stepped_back.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_EQ(cpu->totalUsage, 1);
    EXPECT_EQ(cpu->idleUsage, 0);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(1, 1));
    cpu = read("idle_stepped_back.third");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 110.0 / 200);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.6, 0.5));
}

// cpu1 came back with its idle time counted from zero, and the totals sank with it: how idle the
// machine was meanwhile is unknown. Then cpu0 10 user and 90 idle, cpu1 50 busy and 50 idle.
TEST_F(RecordedProcStat, AnIdleCounterThatStartedAgainCostsOneReadAndNoMore) {
    EXPECT_EQ(read("idle_restarted.first"), nullptr);
    EXPECT_EQ(read("idle_restarted.second"), nullptr);
    const CPUStats* cpu = read("idle_restarted.third");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 60.0 / 200);
    EXPECT_DOUBLE_EQ(cpu->userUsage, 40.0 / 200);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.1, 0.5));
}

// cpu0 60 user and 40 idle, cpu1 20 user and 80 idle, each sum and each idle counter past 2^32.
TEST_F(RecordedProcStat, CountersThatPass32BitsGoOnCounting) {
    EXPECT_EQ(read("low_words_wrapped.first"), nullptr);
    const CPUStats* cpu = read("low_words_wrapped.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 80.0 / 200);
    EXPECT_DOUBLE_EQ(cpu->idleUsage, 120.0 / 200);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.6, 0.2));
}

// 64 processors wholly busy, 64 half (30 user, 20 system), 128 idle, of 100 ticks each.
TEST_F(RecordedProcStat, AMachineWith256ProcessorsIsReadToItsEnd) {
    EXPECT_EQ(read("processors_256.first"), nullptr);
    const CPUStats* cpu = read("processors_256.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 9600.0 / 25600);
    EXPECT_DOUBLE_EQ(cpu->userUsage, 8320.0 / 25600);
    EXPECT_DOUBLE_EQ(cpu->systemUsage, 1280.0 / 25600);
    const auto& shares = cpu->perCoreUsage;
    ASSERT_THAT(shares, SizeIs(256));
    EXPECT_THAT(std::vector(shares.begin(), shares.begin() + 64), Each(1));
    EXPECT_THAT(std::vector(shares.begin() + 64, shares.begin() + 128), Each(DoubleEq(0.5)));
    EXPECT_THAT(std::vector(shares.begin() + 128, shares.end()), Each(0));
}

TEST_F(RecordedProcStat, AnEmptyFileIsAFailedReadAndTheBaselineStays) {
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_EQ(read("empty"), nullptr);
    const CPUStats* cpu = read("two_processors.second");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 0.5);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.75, 0.25));
}

TEST_F(RecordedProcStat, AFileCutInItsFirstLineIsAFailedRead) {
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_EQ(read("cut_in_the_totals"), nullptr);
    EXPECT_NE(read("two_processors.second"), nullptr);
}

// cpu0 75 user and 25 idle, cpu1 25 and 75; in the cut recording 10 and 90, and 90 and 10.
TEST_F(RecordedProcStat, AFileCutAmongTheProcessorsRepeatsTheirLastShares) {
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_NE(read("two_processors.second"), nullptr);
    const CPUStats* cpu = read("cut_in_the_processors");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 0.5);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.75, 0.25));
}

TEST_F(RecordedProcStat, AFileWithoutALineEndAfterIntrIsWholeForThisPurpose) {
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_NE(read("two_processors.second"), nullptr);
    const CPUStats* cpu = read("cut_after_intr");
    ASSERT_NE(cpu, nullptr);
    EXPECT_DOUBLE_EQ(cpu->totalUsage, 0.5);
    EXPECT_THAT(cpu->perCoreUsage, ElementsAre(0.1, 0.9));
}

TEST_F(RecordedProcStat, TwoReadsWithinOneTickGiveNothing) {
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_EQ(read("two_processors.first"), nullptr);
    EXPECT_NE(read("two_processors.second"), nullptr);
}

}  // namespace
}  // namespace vantor::recorded_proc_stat_test
