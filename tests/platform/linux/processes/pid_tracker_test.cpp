#include "platform/linux/processes/pid_tracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/processes/process_tree.h"

namespace vantor::pid_tracker_test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using PIDs = std::vector<std::int32_t>;

class PIDTrackerTest : public testing::Test, protected ProcessTree {
  protected:
    /// Two processes of old, and the kernel at 1000.
    PIDTrackerTest() {
        live(5);
        live(900);
        sayLastPID(1000);
    }

    /// In the listing, and with a clock.
    void live(std::int32_t pid) {
        tree.procFolder(std::to_string(pid));
        clocks->values[pid] = 1;
    }

    PIDs updateAfter(double seconds, const PIDs& gone = {}) {
        now += seconds;
        EXPECT_TRUE(tracker.update(now, gone));
        return pids();
    }
    PIDs pids() const { return {tracker.pids().begin(), tracker.pids().end()}; }

    double now = 5000;
    PIDTracker tracker{tree.roots(), clocks};
};

TEST_F(PIDTrackerTest, ListsAtFirstAndFollowsThen) {
    EXPECT_THAT(updateAfter(0), ElementsAre(5, 900));
    EXPECT_EQ(tracker.listings(), 1U);
    live(1001);
    live(1003);
    sayLastPID(1003);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1001, 1003));
    EXPECT_EQ(tracker.listings(), 1U) << "the folder was not read again";
}

TEST_F(PIDTrackerTest, IdentifiersWithoutAClockAreNoProcesses) {
    updateAfter(0);
    live(1002);
    sayLastPID(1004);  // threads have identifiers of the same row
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1002));
}

TEST_F(PIDTrackerTest, NothingIsAskedOfThoseThatAreKnown) {
    updateAfter(0);
    live(1001);
    sayLastPID(1001);
    updateAfter(1);
    EXPECT_EQ(clocks->reads[1001], 1);
    updateAfter(1);
    EXPECT_EQ(clocks->reads[1001], 1);
    EXPECT_EQ(clocks->reads[900], 0);
}

TEST_F(PIDTrackerTest, AProcessJustBeingMadeIsFoundAtTheSecondLook) {
    updateAfter(0);
    sayLastPID(1005);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900));
    live(1003);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1003));
    EXPECT_EQ(tracker.listings(), 1U);
    live(1002);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1003)) << "two looks are all there is";
}

TEST_F(PIDTrackerTest, OneThatWasJustBeingMadeDuringTheListingIsFoundAtTheNextLook) {
    updateAfter(0);
    live(999);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 999));
    EXPECT_EQ(tracker.listings(), 1U);
}

TEST_F(PIDTrackerTest, TheFirstIdentifiersOfAllCanBeFollowed) {
    sayLastPID(3);
    updateAfter(0);
    live(4);
    sayLastPID(6);
    EXPECT_THAT(updateAfter(1), ElementsAre(4, 5, 900));
    EXPECT_EQ(clocks->reads.count(0), 0U);
    EXPECT_EQ(clocks->reads.count(-1), 0U);
}

TEST_F(PIDTrackerTest, TheLastIdentifiersOfAllCanBeFollowed) {
    sayLastPID(2147483640);
    updateAfter(0);
    live(2147483647);
    sayLastPID(2147483647);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 2147483647));
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 2147483647));
}

TEST_F(PIDTrackerTest, TheDeadAreLeftOut) {
    updateAfter(0);
    live(1001);
    sayLastPID(1001);
    EXPECT_THAT(updateAfter(1, {5}), ElementsAre(900, 1001));
    clocks->values.erase(1001);
    EXPECT_THAT(updateAfter(1, {900, 1001}), IsEmpty());
    EXPECT_EQ(tracker.listings(), 1U);
}

TEST_F(PIDTrackerTest, StrangersAmongTheDeadDoNotMatter) {
    updateAfter(0);
    EXPECT_THAT(updateAfter(1, {1, 7, 901}), ElementsAre(5, 900));
}

TEST_F(PIDTrackerTest, OneThatOnlySeemedDeadIsFoundAtTheSecondLook) {
    updateAfter(0);
    live(1001);
    sayLastPID(1001);
    updateAfter(1);
    EXPECT_THAT(updateAfter(1, {1001}), ElementsAre(5, 900, 1001));
}

TEST_F(PIDTrackerTest, OneBornAndDeadInBetweenIsNeverSeen) {
    updateAfter(0);
    sayLastPID(1010);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900));
}

TEST_F(PIDTrackerTest, IdentifiersThatWentRoundAreListed) {
    updateAfter(0);
    live(300);
    sayLastPID(300);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 300, 900));
    EXPECT_EQ(tracker.listings(), 2U);
    live(301);
    sayLastPID(301);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 300, 301, 900));
    EXPECT_EQ(tracker.listings(), 2U);
}

TEST_F(PIDTrackerTest, ALongPauseIsListed) {
    updateAfter(0);
    updateAfter(2.5);
    EXPECT_EQ(tracker.listings(), 1U);
    live(4);
    EXPECT_THAT(updateAfter(2.75), ElementsAre(4, 5, 900));
    EXPECT_EQ(tracker.listings(), 2U);
}

TEST_F(PIDTrackerTest, TheFolderIsListedEachThirtySeconds) {
    updateAfter(0);
    live(7);  // by an identifier that it chose itself
    for (int second = 1; second < 30; ++second)
        EXPECT_THAT(updateAfter(1), ElementsAre(5, 900)) << second;
    EXPECT_EQ(tracker.listings(), 1U);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 7, 900));
    EXPECT_EQ(tracker.listings(), 2U);
    for (int second = 1; second < 30; ++second)
        updateAfter(1);
    EXPECT_EQ(tracker.listings(), 2U);
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 3U);
}

TEST_F(PIDTrackerTest, TooManyBirthsAreListed) {
    updateAfter(0);
    updateAfter(1);
    sayLastPID(1064);
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 1U);
    EXPECT_EQ(clocks->reads.count(1064), 1U);
    sayLastPID(1065);
    live(1065);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1065)) << "65 places for two looks";
    EXPECT_EQ(tracker.listings(), 2U);
    EXPECT_EQ(clocks->reads.count(1065), 0U);
}

TEST_F(PIDTrackerTest, OnAFullMachineMoreBirthsAreFollowed) {
    for (std::int32_t pid = 2000; pid < 2800; ++pid)
        tree.procFolder(std::to_string(pid));
    sayLastPID(3000);
    updateAfter(0);
    updateAfter(1);
    sayLastPID(3200);
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 1U);
    sayLastPID(3201);
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 2U);
}

TEST_F(PIDTrackerTest, WithoutTheLastIdentifierEachUpdateLists) {
    for (const char* text :
         {"", "\n", "1000", "x\n", "-5\n", "0\n", "1000x\n", "1 000\n", "99999999999999999999\n"}) {
        SCOPED_TRACE(text);
        tree.proc("sys/kernel/ns_last_pid", text);
        const auto before = tracker.listings();
        updateAfter(1);
        EXPECT_THAT(updateAfter(1), ElementsAre(5, 900));
        EXPECT_EQ(tracker.listings(), before + 2);
    }
}

TEST_F(PIDTrackerTest, AMissingFileMeansThatEachUpdateLists) {
    tree.removeProc("sys/kernel/ns_last_pid");
    updateAfter(0);
    live(6);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 6, 900));
    EXPECT_EQ(tracker.listings(), 2U);
}

TEST_F(PIDTrackerTest, FollowsAgainOnceTheLastIdentifierIsKnownAgain) {
    updateAfter(0);
    tree.proc("sys/kernel/ns_last_pid", "");
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 2U);
    sayLastPID(1001);
    updateAfter(1);
    EXPECT_EQ(tracker.listings(), 3U);
    live(1002);
    sayLastPID(1002);
    EXPECT_THAT(updateAfter(1), ElementsAre(5, 900, 1002));
    EXPECT_EQ(tracker.listings(), 3U);
}

TEST_F(PIDTrackerTest, WithoutClocksEachUpdateLists) {
    PIDTracker blind(tree.roots(), nullptr);
    EXPECT_TRUE(blind.update(1, {}));
    EXPECT_TRUE(blind.update(2, {}));
    EXPECT_EQ(blind.listings(), 2U);
    EXPECT_EQ(clocks->readsOfAll(), 0);
}

TEST_F(PIDTrackerTest, WithoutAFolderThereIsNothingToCount) {
    auto roots = tree.roots();
    roots.proc /= "missing";
    PIDTracker none(roots, clocks);
    EXPECT_FALSE(none.update(1, {}));
    EXPECT_THAT(none.pids(), IsEmpty());
    EXPECT_FALSE(none.update(2, {}));
}

/// The kernel answers a thread that asks for the process clock of its own identifier, which makes
/// it look like a process.
TEST(LivePIDTracker, TheThreadThatAsksIsNoProcess) {
    PIDTracker tracker({}, makeLiveProcessClocks());
    const auto now = [clocks = makeLiveProcessClocks()] { return clocks->now(); };
    ASSERT_TRUE(tracker.update(now(), {}));
    std::thread([&] {
        const pid_t self = ::gettid();
        ASSERT_NE(self, ::getpid());
        ASSERT_TRUE(tracker.update(now(), {}));
        EXPECT_THAT(PIDs(tracker.pids().begin(), tracker.pids().end()), Not(Contains(self)));
        EXPECT_THAT(PIDs(tracker.pids().begin(), tracker.pids().end()), Contains(::getpid()));
    }).join();
}

}  // namespace
}  // namespace vantor::pid_tracker_test
