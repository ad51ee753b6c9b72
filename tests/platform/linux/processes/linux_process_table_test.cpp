#include "platform/linux/processes/linux_process_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/linux/processes/process_tree.h"

/// What the facts of processes are made of, and when a file is opened for them.
namespace vantor::linux_process_table_test {
namespace {

using Info = ProcessTable::TaskAllInfo;

const auto pageSize = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
const auto ticksPerSecond = static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));
constexpr std::uint64_t second = 1'000'000'000;

/// On a /proc that counts as our own, whose processes have clocks.
class LinuxProcessTableTest : public testing::Test, protected ProcessTree {
  protected:
    LinuxProcessTableTest() { tree.becomeOwnProc(); }

    std::optional<Info> info(std::int32_t pid) {
        if (!table) table.emplace(tree.roots(), clocks);
        Info found;
        const int size = table->taskAllInfo(pid, found);
        if (size != ProcessTable::taskAllInfoSize) return std::nullopt;
        return found;
    }
    /// Lists all, as at the beginning of each pass, and asks for one.
    std::optional<Info> passAfter(double seconds, std::int32_t pid) {
        if (!table) table.emplace(tree.roots(), clocks);
        clocks->seconds += seconds;
        EXPECT_GE(table->listAllPIDs({}), 0);
        return info(pid);
    }
    std::uint64_t pagesAfter(double seconds, std::int32_t pid) {
        const auto found = passAfter(seconds, pid);
        return found ? found->residentSize / pageSize : 0;
    }

    /// What the kernel counts of the pages it has taken from processes.
    void takeBack(int pages) const {
        tree.proc("vmstat", "pgsteal_kswapd " + std::to_string(pages) + "\n");
    }

    std::optional<LinuxProcessTable> table;
};

TEST_F(LinuxProcessTableTest, TimesAreTheClocksNanoseconds) {
    start(50, {.userTicks = 3, .systemTicks = 4});
    clocks->values[50] = 123'456'789'012;
    const auto found = passAfter(0, 50);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->totalUser + found->totalSystem, 123'456'789'012U);
    EXPECT_EQ(table->timebase()->numerator, 1U);
    EXPECT_EQ(table->timebase()->denominator, 1U);
}

TEST_F(LinuxProcessTableTest, StartAndSizeAreTheFiles) {
    start(50, {.startTicks = 12 * ticksPerSecond + 1, .residentPages = 17});
    const auto found = passAfter(0, 50);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->startSeconds, 12U);
    EXPECT_EQ(found->startMicroseconds, 1'000'000 / ticksPerSecond);
    EXPECT_EQ(found->residentSize, 17 * pageSize);
}

TEST_F(LinuxProcessTableTest, NoFileOfAProcessThatDidNotRunIsOpened) {
    start(50);
    passAfter(0, 50);
    add(50, {.startTicks = 7, .residentPages = 999});
    EXPECT_EQ(pagesAfter(0.25, 50), 10U) << "what the file says now was not read";
    tree.removeProc("50/stat");
    tree.removeProc("50/statm");
    const auto found = passAfter(0, 50);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->totalUser, 1000U);
    EXPECT_EQ(found->residentSize, 10 * pageSize);
}

TEST_F(LinuxProcessTableTest, TheFilesOfAProcessThatRanAreRead) {
    start(50);
    passAfter(0, 50);
    add(50, {.residentPages = 20});
    clocks->values[50] += 1;
    EXPECT_EQ(pagesAfter(0.25, 50), 20U);
    EXPECT_EQ(info(50)->totalUser, 1001U);
}

TEST_F(LinuxProcessTableTest, AClockThatWentBackIsOneThatMoved) {
    start(50);
    passAfter(0, 50);
    add(50, {.residentPages = 20});
    clocks->values[50] -= 1;
    EXPECT_EQ(pagesAfter(0.25, 50), 20U);
}

TEST_F(LinuxProcessTableTest, AProcessThatHasSpentNothingYetIsAlwaysRead) {
    start(50);
    clocks->values[50] = 0;
    passAfter(0, 50);
    add(50, {.residentPages = 20});
    EXPECT_EQ(pagesAfter(0.25, 50), 20U);
}

TEST_F(LinuxProcessTableTest, AReusedIdentifierHasItsOwnStart) {
    start(50, {.startTicks = 100});
    passAfter(0, 50);
    start(50, {.startTicks = 5000, .residentPages = 3});
    clocks->values[50] = 2000;
    const auto found = passAfter(1, 50);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->startSeconds, 5000 / ticksPerSecond);
    EXPECT_EQ(found->residentSize, 3 * pageSize);
}

// Since the counters are kept for each processor, stat tells the sum without what these have not
// handed over yet, and may be wrong by hundreds of kilobytes; statm adds them up.
TEST_F(LinuxProcessTableTest, TheSizeIsStatmsEvenWhereStatWasRead) {
    start(50, {.residentPages = 10});
    tree.proc("50/statm", "5000 12 3 1 0 2 0\n");
    EXPECT_EQ(pagesAfter(0, 50), 12U);
    clocks->values[50] += 1;
    tree.proc("50/statm", "5000 13 3 1 0 2 0\n");
    EXPECT_EQ(pagesAfter(1, 50), 13U);
}

TEST_F(LinuxProcessTableTest, WithoutStatmTheSizeIsStats) {
    start(50, {.residentPages = 10});
    tree.removeProc("50/statm");
    EXPECT_EQ(pagesAfter(0, 50), 10U);
    tree.proc("50/statm", "damaged\n");
    clocks->values[50] += 1;
    EXPECT_EQ(pagesAfter(1, 50), 10U);
}

/// When the size of a sleeping process is read anew after it was first seen.
double firstRenewal(std::int32_t pid) {
    return 5.0 * (1 + pid % 128) / 128;
}

TEST_F(LinuxProcessTableTest, TheSizeOfASleeperIsRenewedAtTheLatestWhenItIsFiveSecondsOld) {
    for (const std::int32_t pid : {128, 170, 255}) {
        SCOPED_TRACE(pid);
        start(pid);
        const double first = firstRenewal(pid);
        ASSERT_LE(first, 5.0);
        table.reset();
        pagesAfter(0, pid);
        add(pid, {.residentPages = 2});
        EXPECT_EQ(pagesAfter(first - 0.01, pid), 10U);
        EXPECT_EQ(pagesAfter(0.02, pid), 2U);
        add(pid, {.residentPages = 3});
        EXPECT_EQ(pagesAfter(4.99, pid), 2U);
        EXPECT_EQ(pagesAfter(0.02, pid), 3U);
    }
}

TEST_F(LinuxProcessTableTest, OfThousandsOfSleepersTheSmallOnesWaitForLongerAndTheLargeOnesDoNot) {
    constexpr std::int32_t small = 2047;  // both are first renewed after a whole period
    constexpr std::int32_t large = 2175;
    const std::uint64_t manyPages = (std::uint64_t{16} << 20U) / pageSize;
    for (std::int32_t pid = 1000; pid < 4000; ++pid)
        tree.proc(file(pid, "comm"), "sleeper\n");
    start(small);
    start(large, {.residentPages = manyPages});
    pagesAfter(0, small);
    info(large);
    for (int renewal = 0; renewal < 2; ++renewal) {
        SCOPED_TRACE(renewal);
        const std::uint64_t pages = pagesAfter(0, small);
        add(small, {.residentPages = pages + 1});
        add(large, {.residentPages = manyPages + pages + 1});
        EXPECT_EQ(pagesAfter(5.01, small), pages);
        EXPECT_EQ(info(large)->residentSize, (manyPages + pages + 1) * pageSize);
        EXPECT_EQ(pagesAfter(2.48, small), pages) << "3,000 of them, 400 a second";
        EXPECT_EQ(pagesAfter(0.02, small), pages + 1);
    }
}

TEST_F(LinuxProcessTableTest, NoSizeIsOlderThanHalfAMinute) {
    constexpr std::int32_t sleeper = 2047;
    for (std::int32_t pid = 1000; pid < 14000; ++pid)
        tree.proc(file(pid, "comm"), "sleeper\n");
    start(sleeper);
    pagesAfter(0, sleeper);
    add(sleeper, {.residentPages = 2});
    EXPECT_EQ(pagesAfter(29.99, sleeper), 10U);
    EXPECT_EQ(pagesAfter(0.02, sleeper), 2U);
}

TEST_F(LinuxProcessTableTest, SleepersSeenTogetherAreNotRenewedTogether) {
    constexpr std::int32_t first = 1280;
    constexpr std::int32_t end = first + 128;
    for (std::int32_t pid = first; pid < end; ++pid)
        start(pid);
    table.emplace(tree.roots(), clocks);
    table->listAllPIDs({});
    for (std::int32_t pid = first; pid < end; ++pid)
        info(pid);
    for (std::int32_t pid = first; pid < end; ++pid)
        add(pid, {.residentPages = 2});
    for (int passed = 1; passed <= 128; ++passed) {
        clocks->seconds += 5.0 / 128 + 0.0001;
        table->listAllPIDs({});
        int renewed = 0;
        for (std::int32_t pid = first; pid < end; ++pid)
            renewed += info(pid)->residentSize == 2 * pageSize ? 1 : 0;
        EXPECT_EQ(renewed, passed);
    }
}

constexpr std::int32_t calmSleeper = 255;  // first renewed after a whole period

TEST_F(LinuxProcessTableTest, WhileNoMemoryIsTakenASmallSleeperIsRenewedEveryTwoMinutes) {
    takeBack(7);
    start(calmSleeper);
    pagesAfter(0, calmSleeper);
    for (const std::uint64_t pages : {2U, 3U}) {
        const std::uint64_t before = info(calmSleeper)->residentSize / pageSize;
        add(calmSleeper, {.residentPages = pages});
        EXPECT_EQ(pagesAfter(119.9, calmSleeper), before);
        EXPECT_EQ(pagesAfter(0.2, calmSleeper), pages);
    }
}

TEST_F(LinuxProcessTableTest, WhileNoMemoryIsTakenALargeSleeperIsRenewedEveryFiveSeconds) {
    takeBack(7);
    const std::uint64_t manyPages = (std::uint64_t{16} << 20U) / pageSize;
    start(calmSleeper, {.residentPages = manyPages});
    pagesAfter(0, calmSleeper);
    add(calmSleeper, {.residentPages = manyPages + 1});
    EXPECT_EQ(pagesAfter(4.9, calmSleeper), manyPages);
    EXPECT_EQ(pagesAfter(0.2, calmSleeper), manyPages + 1);
}

TEST_F(LinuxProcessTableTest, SizesAreRenewedSoonAfterMemoryWasTaken) {
    takeBack(7);
    start(calmSleeper);
    pagesAfter(0, calmSleeper);
    add(calmSleeper, {.residentPages = 2});
    EXPECT_EQ(pagesAfter(20, calmSleeper), 10U);
    takeBack(8);
    EXPECT_EQ(pagesAfter(1, calmSleeper), 10U) << "not all at once";
    EXPECT_EQ(pagesAfter(5.1, calmSleeper), 2U);
    add(calmSleeper, {.residentPages = 3});
    EXPECT_EQ(pagesAfter(5.1, calmSleeper), 3U) << "more may be taken";
    pagesAfter(30, calmSleeper);
    pagesAfter(6, calmSleeper);
    add(calmSleeper, {.residentPages = 4});
    EXPECT_EQ(pagesAfter(50, calmSleeper), 3U) << "it is calm again";
}

TEST_F(LinuxProcessTableTest, WhileNoMemoryIsTakenOneThatRanIsRenewedAtOnce) {
    takeBack(7);
    start(calmSleeper);
    pagesAfter(0, calmSleeper);
    add(calmSleeper, {.residentPages = 2});
    clocks->values[calmSleeper] += 1;
    EXPECT_EQ(pagesAfter(1, calmSleeper), 2U);
}

TEST_F(LinuxProcessTableTest, RunningPutsTheRenewalOff) {
    start(48);
    pagesAfter(0, 48);
    clocks->values[48] += 1;
    pagesAfter(0.25, 48);
    add(48, {.residentPages = 2});
    EXPECT_EQ(pagesAfter(4.99, 48), 10U);
    EXPECT_EQ(pagesAfter(0.02, 48), 2U);
}

TEST_F(LinuxProcessTableTest, KernelThreadsAreNeverRenewed) {
    start(48, {.flags = kernelThreadFlags, .residentPages = 0});
    pagesAfter(0, 48);
    add(48, {.flags = kernelThreadFlags, .residentPages = 9});
    EXPECT_EQ(pagesAfter(60, 48), 0U);
    EXPECT_TRUE(info(48));
}

TEST_F(LinuxProcessTableTest, ASleeperWhoseSizeCannotBeRenewedIsLeftOut) {
    for (const std::string& statm : {std::string(), std::string("5000 2"),
                                     std::string("5000 x 1\n"), std::string(9000, '7') + " 2\n"}) {
        SCOPED_TRACE(statm);
        start(48);
        table.reset();
        pagesAfter(0, 48);
        tree.proc("48/statm", statm);
        EXPECT_FALSE(passAfter(6, 48));
    }
}

TEST_F(LinuxProcessTableTest, AProcThatIsNotOursHasNoClocks) {
    const auto expectTicks = [this] {
        table.reset();
        clocks->reads.clear();
        start(50, {.userTicks = 3, .systemTicks = 4});
        const auto found = passAfter(0, 50);
        ASSERT_TRUE(found);
        EXPECT_EQ(found->totalUser + found->totalSystem, 7 * (second / ticksPerSecond));
        add(50, {.userTicks = 30, .systemTicks = 40, .residentPages = 4});
        EXPECT_EQ(passAfter(1, 50)->totalUser, 70 * (second / ticksPerSecond));
        EXPECT_EQ(info(50)->residentSize, 4 * pageSize);
        EXPECT_EQ(clocks->readsOfAll(), 0) << "they would be those of strangers";
    };
    tree.removeProc("self");
    expectTicks();
    for (const std::string& other :
         {std::to_string(::getpid() + 1), std::string("1x"), std::to_string(::getpid()) + "/",
          std::string("self"), std::string(40, '1')}) {
        SCOPED_TRACE(other);
        tree.linkProc("self", other);
        expectTicks();
    }
    tree.removeProc("self");
    tree.proc("self", std::to_string(::getpid()));
    expectTicks();
}

TEST_F(LinuxProcessTableTest, AProcessWithoutAClockHasItsTicks) {
    add(50, {.userTicks = 1, .systemTicks = 2});
    const auto found = passAfter(0, 50);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->totalUser, 3 * (second / ticksPerSecond));
}

struct DamageRow {
    const char* name;
    std::string stat;

    friend void PrintTo(const DamageRow& row, std::ostream* out) { *out << row.name; }
};

const auto most = std::numeric_limits<std::uint64_t>::max();

class DamagedProcessFile : public testing::TestWithParam<DamageRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedProcessFile,
    testing::Values(
        DamageRow{"Empty", ""}, DamageRow{"Cut", ProcessFacts{}.stat(50).substr(0, 60)},
        DamageRow{"Huge", std::string(100000, '7') + "\n"},
        DamageRow{"ALineLongerThanTheKernels", ProcessFacts{std::string(5000, 'n')}.stat(50)},
        DamageRow{"TicksTooLargeToAdd", ProcessFacts{.userTicks = most, .systemTicks = 1}.stat(50)},
        DamageRow{"TicksTooLargeForNanoseconds", ProcessFacts{.userTicks = most}.stat(50)},
        DamageRow{"PagesTooLargeForBytes", ProcessFacts{.residentPages = most}.stat(50)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(DamagedProcessFile, LeavesItsProcessOut) {
    ProcessTree world;
    world.add(50, {});
    world.tree.removeProc("50/statm");
    world.tree.proc("50/stat", GetParam().stat);
    world.add(51, {});
    LinuxProcessTable table = world.table();
    EXPECT_EQ(table.listAllPIDs({}), 2);
    Info found;
    EXPECT_EQ(table.taskAllInfo(50, found), 0);
    EXPECT_EQ(table.taskAllInfo(51, found), ProcessTable::taskAllInfoSize);
    world.tree.proc("50/stat", ProcessFacts{}.stat(50));
    EXPECT_EQ(table.listAllPIDs({}), 2);
    EXPECT_EQ(table.taskAllInfo(50, found), ProcessTable::taskAllInfoSize);
}

TEST_F(LinuxProcessTableTest, AFolderInPlaceOfTheFileLeavesItsProcessOut) {
    tree.procFolder("50/stat");
    clocks->values[50] = 1;
    EXPECT_FALSE(passAfter(0, 50));
    EXPECT_FALSE(info(51)) << "nor is there one that was never listed";
}

TEST_F(LinuxProcessTableTest, OneThatIsNotInTheListingMayBeAskedForAllTheSame) {
    passAfter(0, 50);
    start(50);
    EXPECT_TRUE(info(50));
}

}  // namespace
}  // namespace vantor::linux_process_table_test
