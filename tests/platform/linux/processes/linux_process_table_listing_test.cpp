#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/linux/processes/process_tree.h"

/// Who is listed: births, deaths, and those that may not be looked at.
namespace vantor::linux_process_table_listing_test {
namespace {

using testing::ElementsAre;
using PIDs = std::vector<std::int32_t>;

/// While it lives, no file can be opened.
class NoMoreDescriptors {
  public:
    NoMoreDescriptors() {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        const struct rlimit none = {0, before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    NoMoreDescriptors(const NoMoreDescriptors&) = delete;
    NoMoreDescriptors& operator=(const NoMoreDescriptors&) = delete;
    ~NoMoreDescriptors() { ::setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    struct rlimit before_ = {};
};

class LinuxProcessTableListingTest : public testing::Test, protected ProcessTree {
  protected:
    LinuxProcessTableListingTest() {
        sayLastPID(1000);
        for (const std::int32_t pid : {5, 40, 900})
            start(pid);
    }

    /// The identifiers as listed, and of those the ones that could be read.
    PIDs listed() {
        std::array<std::int32_t, 64> buffer{};
        const int count = processes.listAllPIDs({});
        EXPECT_EQ(processes.listAllPIDs(buffer), count);
        return {buffer.begin(), buffer.begin() + std::max(count, 0)};
    }
    PIDs passAfter(double seconds) {
        clocks->seconds += seconds;
        PIDs read;
        for (const std::int32_t pid : listed()) {
            ProcessTable::TaskAllInfo info;
            if (processes.taskAllInfo(pid, info) == ProcessTable::taskAllInfoSize) {
                read.push_back(pid);
            }
        }
        return read;
    }

    /// In the kernel's ticks, as the table has it after a pass.
    std::uint64_t startTicksOf(std::int32_t pid) {
        ProcessTable::TaskAllInfo info;
        processes.taskAllInfo(pid, info);
        return info.startSeconds * 100 + info.startMicroseconds / 10'000;
    }
    std::uint64_t residentPagesOf(std::int32_t pid) {
        ProcessTable::TaskAllInfo info;
        processes.taskAllInfo(pid, info);
        return info.residentSize / static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    }

    LinuxProcessTable processes = ownTable();
};

TEST_F(LinuxProcessTableListingTest, OneThatRanIsTheSameWhileItsIdentifierIsNotAssignedAnew) {
    passAfter(0);
    passAfter(1);
    add(40, {.startTicks = 5000, .residentPages = 20});
    clocks->values[40] += 1;
    passAfter(1);
    EXPECT_EQ(startTicksOf(40), 100U) << "its stat was not read";
    EXPECT_EQ(residentPagesOf(40), 20U);
}

TEST_F(LinuxProcessTableListingTest, OneThatHasSpentNothingIsTheSameUntilItsIdentifierIsAssigned) {
    clocks->values[40] = 0;
    passAfter(0);
    passAfter(1);
    add(40, {.startTicks = 5000});
    passAfter(1);
    EXPECT_EQ(startTicksOf(40), 100U);
    passAfter(28);
    EXPECT_EQ(startTicksOf(40), 5000U) << "it may have chosen the identifier";
}

TEST_F(LinuxProcessTableListingTest, AnIdentifierThatWasAssignedAnewHasItsOwnStart) {
    passAfter(0);
    start(1001, {.startTicks = 300});
    sayLastPID(1001);
    passAfter(1);
    EXPECT_EQ(startTicksOf(1001), 300U);
    start(1001, {.startTicks = 5000});
    clocks->values[1001] = 2000;
    passAfter(1);
    EXPECT_EQ(startTicksOf(1001), 5000U) << "the kernel was there between two looks";
}

TEST_F(LinuxProcessTableListingTest, AClockThatWentBackIsAnothersWhateverTheKernelSays) {
    passAfter(0);
    passAfter(1);
    start(40, {.startTicks = 5000});
    clocks->values[40] = 999;
    passAfter(1);
    EXPECT_EQ(startTicksOf(40), 5000U);
}

TEST_F(LinuxProcessTableListingTest, OfAKernelThreadThatRanNoFileIsRead) {
    add(40, {.flags = kernelThreadFlags, .residentPages = 0});
    passAfter(0);
    passAfter(1);
    tree.removeProc("40/stat");
    tree.removeProc("40/statm");
    clocks->values[40] += 1;
    EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 900));
}

TEST_F(LinuxProcessTableListingTest, OneThatRanAndWhoseSizeCannotBeReadIsGone) {
    passAfter(0);
    passAfter(1);
    tree.removeProc("40/stat");
    tree.removeProc("40/statm");
    clocks->values[40] += 1;
    EXPECT_THAT(passAfter(1), ElementsAre(5, 900));
}

TEST_F(LinuxProcessTableListingTest, ListsInAscendingOrder) {
    EXPECT_THAT(listed(), ElementsAre(5, 40, 900));
}

TEST_F(LinuxProcessTableListingTest, ClocksThatDoNotAnswerForUsAreNotTrustedWithBirths) {
    clocks->values.clear();
    processes = table();
    EXPECT_THAT(passAfter(0.5), ElementsAre(5, 40, 900));
    add(1001, {});
    sayLastPID(1001);
    EXPECT_THAT(passAfter(0.5), ElementsAre(5, 40, 900, 1001));
}

TEST_F(LinuxProcessTableListingTest, TheListingIsTheOneThatWasCounted) {
    std::array<std::int32_t, 8> buffer{};
    EXPECT_EQ(processes.listAllPIDs({}), 3);
    start(1001);
    sayLastPID(1001);
    EXPECT_EQ(processes.listAllPIDs(buffer), 3);
    EXPECT_EQ(processes.listAllPIDs(buffer), 4) << "the next one is a new one";
    EXPECT_EQ(buffer[3], 1001);
}

TEST_F(LinuxProcessTableListingTest, FillsTheBufferAndNoMore) {
    std::array<std::int32_t, 3> buffer{};
    EXPECT_EQ(processes.listAllPIDs({}), 3);
    EXPECT_EQ(processes.listAllPIDs(std::span(buffer).first(2)), 2);
    EXPECT_THAT(buffer, ElementsAre(5, 40, 0));
}

TEST_F(LinuxProcessTableListingTest, BirthsAndDeathsAreFollowedWithoutReadingTheFolder) {
    EXPECT_THAT(passAfter(0), ElementsAre(5, 40, 900));
    tree.procFolder("41");  // in the folder, but nothing speaks of it
    start(1001);
    sayLastPID(1002);
    EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 900, 1001));
    end(40);
    EXPECT_THAT(passAfter(1), ElementsAre(5, 900, 1001)) << "unreadable";
    EXPECT_THAT(listed(), ElementsAre(5, 900, 1001)) << "and no more listed";
}

TEST_F(LinuxProcessTableListingTest, OneThatMayNotBeLookedAtIsAskedAgainWithTheNextListing) {
    tree.procFolder("77");
    clocks->values[77] = 1;
    EXPECT_THAT(passAfter(0), ElementsAre(5, 40, 900));
    for (int second = 1; second < 30; ++second)
        EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 900));
    EXPECT_EQ(clocks->reads[77], 1);
    add(77, {});
    EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 77, 900));
}

TEST_F(LinuxProcessTableListingTest, AReusedIdentifierIsReadAnew) {
    passAfter(0);
    end(40);
    passAfter(1);
    start(40, {.startTicks = 7777});
    tree.proc("sys/kernel/ns_last_pid", "39\n");  // went round
    EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 900));
    ProcessTable::TaskAllInfo info;
    processes.taskAllInfo(40, info);
    EXPECT_EQ(info.startSeconds, 77U);
}

TEST_F(LinuxProcessTableListingTest, AShortageOfDescriptorsIsNobodysDeath) {
    passAfter(0);
    for (const std::int32_t pid : {5, 900})
        clocks->values[pid] += 1;
    PIDs meanwhile;
    {
        // Nothing else in here: some checks of the sanitizers need a descriptor.
        const NoMoreDescriptors shortage;
        meanwhile = passAfter(1);
    }
    EXPECT_THAT(meanwhile, ElementsAre(40)) << "which did not run";
    EXPECT_THAT(passAfter(1), ElementsAre(5, 40, 900));
}

TEST_F(LinuxProcessTableListingTest, WithoutProcNothingIsListed) {
    auto roots = tree.roots();
    roots.proc /= "missing";
    LinuxProcessTable none(roots, clocks);
    std::array<std::int32_t, 8> buffer{};
    EXPECT_LT(none.listAllPIDs({}), 1);
    EXPECT_LT(none.listAllPIDs(buffer), 1);
    ProcessTable::TaskAllInfo info;
    EXPECT_NE(none.taskAllInfo(5, info), ProcessTable::taskAllInfoSize);
    std::array<char, 64> text{};
    EXPECT_LT(none.path(5, text), 1);
    EXPECT_LT(none.name(5, text), 1);
}

TEST_F(LinuxProcessTableListingTest, AnEmptyProcIsNoFailureOfAnybodyElse) {
    const FakeKernelTree empty;
    LinuxProcessTable none(empty.roots(), clocks);
    EXPECT_LT(none.listAllPIDs({}), 1);
}

}  // namespace
}  // namespace vantor::linux_process_table_listing_test
