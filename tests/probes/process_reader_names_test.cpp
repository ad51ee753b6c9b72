#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "probes/process_world.h"

/// When names and paths are looked up: that is the expensive part.
namespace vantor::process_reader_names_test {
namespace {

class ProcessReaderNamesTest : public testing::Test, protected ProcessWorld {
  protected:
    /// Goes to `seconds` after the start, reads, and says how many lookups that took.
    int lookupsAt(double seconds) {
        const int before = table.pathLookups;
        machine->clock()->setNow(std::chrono::nanoseconds{std::llround((1000 + seconds) * 1e9)});
        sample = reader->read();
        return table.pathLookups - before;
    }

    ProcessSample sample;
};

TEST_F(ProcessReaderNamesTest, ANewProcessIsLookedUpAgainSoonAndThenEachTenSeconds) {
    for (const std::int32_t pid : {16, 17, 24, 31, 4096, 32767}) {
        SCOPED_TRACE(pid);
        table.processes.clear();
        table.pathLookups = 0;
        reader->resetDeltas();
        table.add(pid, "/bin/a");
        const double soon = pid % 16 * 0.5 + 2.0;
        EXPECT_EQ(lookupsAt(0), 1);
        EXPECT_EQ(lookupsAt(soon - 0.25), 0);
        EXPECT_EQ(lookupsAt(soon), 1);
        EXPECT_EQ(lookupsAt(soon + 9.75), 0);
        EXPECT_EQ(lookupsAt(soon + 10), 1);
        EXPECT_EQ(lookupsAt(soon + 19.75), 0);
        EXPECT_EQ(lookupsAt(soon + 20), 1);
    }
}

TEST_F(ProcessReaderNamesTest, TheTenSecondsCountFromTheLookup) {
    table.add(16, "/bin/a");
    EXPECT_EQ(lookupsAt(0), 1);
    EXPECT_EQ(lookupsAt(7), 1);
    EXPECT_EQ(lookupsAt(16.75), 0);
    EXPECT_EQ(lookupsAt(17), 1);
}

TEST_F(ProcessReaderNamesTest, ProcessesSeenTogetherAreNotLookedUpTogether) {
    for (std::int32_t pid = 160; pid < 320; ++pid)
        table.add(pid, "/bin/a");
    EXPECT_EQ(lookupsAt(0), 160);
    EXPECT_EQ(lookupsAt(1.5), 0);
    for (int step = 0; step < 16; ++step)
        EXPECT_EQ(lookupsAt(2 + 0.5 * step), 10) << step;
    EXPECT_EQ(lookupsAt(10), 0);
}

TEST_F(ProcessReaderNamesTest, AProgramStartedInAProcessIsSeenAtTheNextLookup) {
    table.add(16, "/bin/shell");
    lookupsAt(0);
    table.find(16)->path = "/bin/sleep";
    lookupsAt(1.75);
    EXPECT_EQ(rowOf(sample, 16).name.string(), "shell");
    lookupsAt(2);
    EXPECT_EQ(rowOf(sample, 16).name.string(), "sleep");
    EXPECT_EQ(rowOf(sample, 16).command.string(), "/bin/sleep");
}

TEST_F(ProcessReaderNamesTest, AReusedIdentifierIsLookedUpAtOnceAndAgainSoon) {
    table.add(20, "/bin/first");  // 20 mod 16 = 4: four seconds
    EXPECT_EQ(lookupsAt(0), 1);
    EXPECT_EQ(lookupsAt(4), 1);
    EXPECT_EQ(lookupsAt(5), 0);
    table.remove(20);
    table.add(20, "/bin/second").info.startSeconds = 5;
    EXPECT_EQ(lookupsAt(6), 1);
    EXPECT_EQ(rowOf(sample, 20).name.string(), "second");
    EXPECT_EQ(lookupsAt(9.75), 0);
    EXPECT_EQ(lookupsAt(10), 1);
    EXPECT_EQ(lookupsAt(19.75), 0);
    EXPECT_EQ(lookupsAt(20), 1);
}

TEST_F(ProcessReaderNamesTest, AVanishedProcessIsForgotten) {
    table.add(16, "/bin/a");
    table.add(32, "/bin/b");
    EXPECT_EQ(lookupsAt(0), 2);
    table.find(32)->isReadable = false;
    EXPECT_EQ(lookupsAt(0.5), 0);
    EXPECT_EQ(reader->storage().metadataByPID.size(), 1U);
    table.find(32)->isReadable = true;
    EXPECT_EQ(lookupsAt(1), 1);
}

TEST_F(ProcessReaderNamesTest, WhenNobodyCanBeReadAllNamesAreForgotten) {
    table.add(16, "/bin/a");
    EXPECT_EQ(lookupsAt(0), 1);
    table.find(16)->isReadable = false;
    EXPECT_EQ(lookupsAt(0.5), 0);
    EXPECT_EQ(reader->storage().metadataByPID.size(), 0U);
    table.find(16)->isReadable = true;
    EXPECT_EQ(lookupsAt(1), 1);
}

TEST_F(ProcessReaderNamesTest, AFailedListingForgetsNoName) {
    table.add(16, "/bin/a");
    EXPECT_EQ(lookupsAt(0), 1);
    table.claimedCount = 0;
    EXPECT_EQ(lookupsAt(0.5), 0);
    table.claimedCount.reset();
    EXPECT_EQ(lookupsAt(1), 0);
}

TEST_F(ProcessReaderNamesTest, ASystemThatKnowsThatNothingIsNewIsAskedOnceAMinute) {
    table.add(16, "/bin/a").mayHaveNewPath = false;
    EXPECT_EQ(lookupsAt(0), 1);
    EXPECT_EQ(lookupsAt(2), 0);
    EXPECT_EQ(lookupsAt(12), 1);
    for (const double seconds : {22, 32, 42, 52})
        EXPECT_EQ(lookupsAt(seconds), 0) << seconds;
    EXPECT_EQ(lookupsAt(62), 1);
}

TEST_F(ProcessReaderNamesTest, TheExecutableOfASleeperThatIsRenamedIsSeenWithinAMinute) {
    for (const std::int32_t pid : {16, 17, 47, 63, 64, 80, 4096, 32767})
        table.add(pid, "/bin/a").mayHaveNewPath = false;
    for (const double renamed : {0.0, 61.0, 200.0}) {
        SCOPED_TRACE(renamed);
        const std::string name = "b" + std::to_string(static_cast<int>(renamed));
        lookupsAt(renamed);
        for (auto& process : table.processes)
            process.path = "/bin/" + name;
        for (int second = 1; second <= 60; ++second)
            lookupsAt(renamed + second);
        for (const ProcessStats& process : sample.all)
            EXPECT_EQ(process.name.string(), name) << process.pid;
    }
}

TEST_F(ProcessReaderNamesTest, SleepersSeenTogetherAreNotAskedForTogether) {
    for (std::int32_t pid = 160; pid < 320; ++pid)
        table.add(pid, "/bin/a").mayHaveNewPath = false;
    EXPECT_EQ(lookupsAt(0), 160);
    int all = 0;
    for (double seconds = 0.5; seconds <= 60; seconds += 0.5) {
        const int lookups = lookupsAt(seconds);
        EXPECT_LE(lookups, 4) << seconds;
        all += lookups;
    }
    EXPECT_GE(all, 160);
}

TEST_F(ProcessReaderNamesTest, ASleeperThatRanIsLookedUpAtTheNextQuestion) {
    table.add(32, "/bin/a");
    EXPECT_EQ(lookupsAt(0), 1);
    table.find(32)->mayHaveNewPath = false;
    table.find(32)->path = "/bin/b";
    EXPECT_EQ(lookupsAt(2), 0);
    EXPECT_EQ(rowOf(sample, 32).name.string(), "a");
    table.find(32)->mayHaveNewPath = true;
    EXPECT_EQ(lookupsAt(11.75), 0) << "the question was put, so ten seconds go by";
    EXPECT_EQ(lookupsAt(12), 1);
    EXPECT_EQ(rowOf(sample, 32).name.string(), "b");
}

TEST_F(ProcessReaderNamesTest, AReusedIdentifierIsAlwaysLookedUp) {
    table.add(16, "/bin/a");
    lookupsAt(0);
    table.remove(16);
    auto& other = table.add(16, "/bin/b");
    other.info.startSeconds = 3;
    other.mayHaveNewPath = false;
    EXPECT_EQ(lookupsAt(1), 1);
    EXPECT_EQ(rowOf(sample, 16).name.string(), "b");
}

TEST_F(ProcessReaderNamesTest, AProcessWithoutPathAndNameIsCalledByItsIdentifier) {
    table.add(4711, "");
    lookupsAt(0);
    lookupsAt(1);
    EXPECT_EQ(rowOf(sample, 4711).name.string(), "PID 4711");
    EXPECT_EQ(rowOf(sample, 4711).command.string(), "PID 4711");
}

TEST_F(ProcessReaderNamesTest, AProcessWithoutPathIsCalledAsTheKernelDoes) {
    table.add(2, "").name = "kthreadd";
    table.add(3, "/opt/app/");
    lookupsAt(0);
    lookupsAt(1);
    EXPECT_EQ(rowOf(sample, 2).name.string(), "kthreadd");
    EXPECT_EQ(rowOf(sample, 2).command.string(), "kthreadd");
    EXPECT_EQ(rowOf(sample, 3).name.string(), "app");
}

}  // namespace
}  // namespace vantor::process_reader_names_test
