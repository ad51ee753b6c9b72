#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "probes/process_world.h"

namespace vantor::process_reader_listing_test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::uint64_t second = 1'000'000'000;

class ProcessReaderListingTest : public testing::Test, protected ProcessWorld {
  protected:
    void addProcesses(std::int32_t first, std::int32_t count) {
        for (std::int32_t pid = first; pid < first + count; ++pid)
            table.add(pid, "/bin/p");
    }
    void allowAtMost(std::int32_t processes) {
        machine->kernelValues().setInt32("kern.maxproc", processes);
        reader.emplace(machine);
    }
    std::size_t storedMaximum() const {
        return static_cast<std::size_t>(ProcessReader(machine).storage().maximumPIDCapacity());
    }
};

TEST_F(ProcessReaderListingTest, IdentifiersBelowOneAreNeverReported) {
    table.add(0, "/kernel");
    table.add(-5, "/odd");
    table.add(1, "/sbin/init");
    reader->read();
    EXPECT_THAT(pidsOf(readAfter(1).all), ElementsAre(1));
}

TEST_F(ProcessReaderListingTest, TheBufferStartsWith64ToSpareAndKeepsItsSize) {
    addProcesses(1, 10);
    reader->read();
    addProcesses(100, 60);
    readAfter(1);
    EXPECT_THAT(table.bufferSizes, ElementsAre(74, 134));
    table.processes.resize(5);
    readAfter(1);
    EXPECT_THAT(table.bufferSizes, ElementsAre(74, 134, 134));
}

TEST_F(ProcessReaderListingTest, AListingThatOutgrowsTheBufferIsTriedAgainWithTwiceTheRoom) {
    addProcesses(1, 100);
    table.claimedCount = 1;
    reader->read();
    EXPECT_THAT(table.bufferSizes, ElementsAre(65, 130));
    EXPECT_THAT(readAfter(1).all, SizeIs(100));
    EXPECT_EQ(reader->storage().lastListedPIDCount, 100);
}

TEST_F(ProcessReaderListingTest, AListingThatJustFillsTheBufferMayBeCut) {
    addProcesses(1, 65);
    table.claimedCount = 1;
    reader->read();
    EXPECT_THAT(table.bufferSizes, ElementsAre(65, 130));
}

TEST_F(ProcessReaderListingTest, AThirdAttemptThatFitsCounts) {
    addProcesses(1, 200);
    table.claimedCount = 1;
    reader->read();
    EXPECT_THAT(table.bufferSizes, ElementsAre(65, 130, 260));
    EXPECT_THAT(readAfter(1).all, SizeIs(200));
}

TEST_F(ProcessReaderListingTest, AListingStillCutAtTheThirdAttemptIsNoneAndKeepsTheBaseline) {
    addProcesses(1, 10);
    reader->read();
    addProcesses(100, 400);
    table.claimedCount = 1;
    table.spend(5, second);
    EXPECT_EQ(readAfter(1), ProcessSample::empty());
    EXPECT_EQ(reader->storage().lastListedPIDCount, 10);
    table.claimedCount.reset();
    const ProcessSample sample = readAfter(1);
    EXPECT_THAT(sample.all, SizeIs(410));
    EXPECT_DOUBLE_EQ(rowOf(sample, 5).cpuPercent, 50) << "over both intervals";
}

TEST_F(ProcessReaderListingTest, ProcessesThatKeepComingBetweenTheAttemptsGiveNone) {
    addProcesses(1, 10);
    std::int32_t next = 1000;
    table.onList = [&] {
        addProcesses(next, 1000);
        next += 1000;
    };
    EXPECT_EQ(reader->read(), ProcessSample::empty());
    EXPECT_EQ(table.listings, 3);
    table.onList = nullptr;
    reader->read();
    EXPECT_THAT(readAfter(1).all, SizeIs(3010));
}

TEST_F(ProcessReaderListingTest, AListingCutAtTheMaximumIsTaken) {
    allowAtMost(100);
    addProcesses(1, 300);
    reader->read();
    const ProcessSample sample = readAfter(1);
    EXPECT_THAT(sample.all, SizeIs(100));
    EXPECT_EQ(reader->storage().lastListedPIDCount, 100);
    EXPECT_THAT(table.bufferSizes, ElementsAre(100, 100)) << "one attempt each";
}

TEST_F(ProcessReaderListingTest, GrowthStopsAtTheMaximum) {
    allowAtMost(100);
    addProcesses(1, 300);
    table.claimedCount = 1;
    reader->read();
    EXPECT_THAT(table.bufferSizes, ElementsAre(65, 100));
    EXPECT_THAT(readAfter(1).all, SizeIs(100));
}

TEST_F(ProcessReaderListingTest, AnAnswerBeyondTheBufferCountsAsAFullOne) {
    addProcesses(1, 10);
    table.claimedListed = std::numeric_limits<int>::max();
    EXPECT_EQ(reader->read(), ProcessSample::empty());
    EXPECT_THAT(table.bufferSizes, ElementsAre(74, 148, 296));
    allowAtMost(50);
    reader->read();
    EXPECT_THAT(pidsOf(readAfter(1).all), SizeIs(10)) << "zeros in the rest are skipped";
}

TEST_F(ProcessReaderListingTest, ACountOrAListingBelowOneGivesNoneAndKeepsTheBaseline) {
    table.add(10, "/bin/a");
    reader->read();
    for (const int answer : {0, -1, std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(answer);
        table.spend(10, second);
        table.claimedCount = answer;
        EXPECT_EQ(readAfter(1), ProcessSample::empty());
        table.claimedCount.reset();
        table.claimedListed = answer;
        EXPECT_EQ(readAfter(1), ProcessSample::empty());
        table.claimedListed.reset();
        EXPECT_DOUBLE_EQ(rowOf(readAfter(2), 10).cpuPercent, 25);
    }
}

TEST_F(ProcessReaderListingTest, TheLargestCountIsCappedByTheMaximum) {
    allowAtMost(1000);
    addProcesses(1, 10);
    table.claimedCount = std::numeric_limits<int>::max();
    reader->read();
    EXPECT_THAT(table.bufferSizes, ElementsAre(1000));
    EXPECT_THAT(readAfter(1).all, SizeIs(10));
}

TEST_F(ProcessReaderListingTest, AListingOfTwoGigabytesGivesNoneAndTakesNoMemory) {
    allowAtMost(std::numeric_limits<std::int32_t>::max());
    for (const int count : {(1 << 29) - 64, 1 << 29, std::numeric_limits<int>::max()}) {
        table.claimedCount = count;
        EXPECT_EQ(reader->read(), ProcessSample::empty());
        EXPECT_EQ(table.listings, 0);
        EXPECT_EQ(reader->storage().pidBuffer.capacity(), 0U);
    }
}

TEST_F(ProcessReaderListingTest, TheMaximumIsTheKernelsAndElse131072) {
    EXPECT_EQ(storedMaximum(), 131072U);
    machine->kernelValues().setInt32("kern.maxproc", 4000);
    EXPECT_EQ(storedMaximum(), 4000U);
    machine->kernelValues().setInt32("kern.maxproc", 0);
    EXPECT_EQ(storedMaximum(), 131072U);
    machine->kernelValues().setInt32("kern.maxproc", -7);
    EXPECT_EQ(storedMaximum(), 131072U);
    machine->kernelValues().setUInt64("kern.maxproc", 4000);
    EXPECT_EQ(storedMaximum(), 131072U) << "eight bytes are not that value";
}

TEST_F(ProcessReaderListingTest, NobodyListedEndsTheWaitOfOversizedStorage) {
    addProcesses(1, 3000);
    reader->read();
    table.processes.resize(10);
    readAfter(1);
    EXPECT_EQ(reader->storage().scratchOversizeSinceUptime, 1001.0);
    table.claimedCount = 0;
    readAfter(1);
    EXPECT_FALSE(reader->storage().scratchOversizeSinceUptime);
}

TEST_F(ProcessReaderListingTest, OversizedStorageIsGivenBackAfterThirtySeconds) {
    addProcesses(1, 9000);
    reader->read();
    readAfter(1);
    EXPECT_EQ(reader->storage().pidBuffer.size(), 9064U);
    table.processes.resize(10);
    readAfter(1);
    readAfter(29);
    EXPECT_EQ(reader->storage().pidBuffer.size(), 9064U);
    EXPECT_GE(reader->storage().metadataByPID.capacity(), 9000U);
    table.spend(5, second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 5).cpuPercent, 100);
    EXPECT_EQ(reader->storage().pidBuffer.size(), 512U);
    EXPECT_LE(reader->storage().rawProcessBuffer.capacity(), 2048U);
    EXPECT_LE(reader->storage().metadataByPID.capacity(), 2048U);
    EXPECT_LE(reader->storage().previousCPUByPID.capacity(), 2048U);
    EXPECT_LE(reader->storage().nextCPUByPID.capacity(), 2048U);
    EXPECT_LE(reader->storage().activePIDBuffer.capacity(), 2048U);
    EXPECT_LE(reader->storage().staleMetadataPIDBuffer.capacity(), 2048U);
    table.spend(5, second / 2);
    const ProcessSample sample = readAfter(1);
    EXPECT_THAT(sample.all, SizeIs(10));
    EXPECT_DOUBLE_EQ(rowOf(sample, 5).cpuPercent, 50) << "no time was lost with the storage";
}

TEST_F(ProcessReaderListingTest, ABaselineCallTrimsToo) {
    addProcesses(1, 9000);
    reader->read();
    table.processes.resize(10);
    readAfter(1);
    wind(30);
    reader->read();
    EXPECT_EQ(reader->storage().pidBuffer.size(), 512U);
    addProcesses(20000, 9000);
    readAfter(1);
    table.processes.resize(10);
    reader->read();  // at the same uptime: a baseline
    EXPECT_TRUE(reader->storage().scratchOversizeSinceUptime);
}

}  // namespace
}  // namespace vantor::process_reader_listing_test
