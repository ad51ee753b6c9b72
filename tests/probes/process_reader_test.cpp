#include "probes/process_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "probes/process_world.h"

namespace vantor::process_reader_test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::SizeIs;

constexpr std::uint64_t second = 1'000'000'000;
constexpr auto largest = std::numeric_limits<std::uint64_t>::max();

class ProcessReaderTest : public testing::Test, protected ProcessWorld {};

TEST_F(ProcessReaderTest, FirstCallTakesABaselineAndTheSecondMeasures) {
    table.add(10, "/bin/worker", 4096);
    table.spend(10, 77 * second);
    EXPECT_EQ(reader->read(), ProcessSample::empty());
    table.spend(10, second / 2);
    const ProcessSample sample = readAfter(1);
    ASSERT_THAT(sample.all, SizeIs(1));
    EXPECT_DOUBLE_EQ(sample.all[0].cpuPercent, 50);
    EXPECT_EQ(sample.all[0].pid, 10);
    EXPECT_EQ(sample.all[0].name.string(), "worker");
    EXPECT_EQ(sample.all[0].command.string(), "/bin/worker");
    EXPECT_EQ(sample.all[0].residentMemoryBytes, 4096U);
    EXPECT_EQ(sample.sortedByCPU, sample.all);
    EXPECT_EQ(sample.sortedByMemory, sample.all);
}

TEST_F(ProcessReaderTest, FourProcessorsFullyUsedAre400) {
    table.add(10, "/bin/worker");
    reader->read();
    table.spend(10, 8 * second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(2), 10).cpuPercent, 400);
}

TEST_F(ProcessReaderTest, UserAndSystemTimeCountTogether) {
    table.add(10, "/bin/worker");
    reader->read();
    table.find(10)->info.totalUser += second / 10;
    table.find(10)->info.totalSystem += second / 5;
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 30);
}

TEST_F(ProcessReaderTest, EachCallMeasuresSinceTheCallBefore) {
    table.add(10, "/bin/worker");
    reader->read();
    table.spend(10, second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 100);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 0);
    table.spend(10, second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(4), 10).cpuPercent, 25);
}

TEST_F(ProcessReaderTest, AProcessSeenForTheFirstTimeHasNoShare) {
    table.add(10, "/bin/old");
    reader->read();
    table.add(20, "/bin/new");
    table.spend(20, 5 * second);
    EXPECT_EQ(rowOf(readAfter(1), 20).cpuPercent, 0);
    table.spend(20, second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 20).cpuPercent, 100);
}

TEST_F(ProcessReaderTest, AReusedIdentifierHasNoShareAndAFreshName) {
    table.add(10, "/bin/first");
    reader->read();
    readAfter(1);
    table.remove(10);
    table.add(10, "/bin/second").info.startMicroseconds = 1;
    table.spend(10, 50 * second);
    const ProcessSample sample = readAfter(1);
    EXPECT_EQ(rowOf(sample, 10).cpuPercent, 0);
    EXPECT_EQ(rowOf(sample, 10).name.string(), "second");
    table.spend(10, second);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 100);
}

TEST_F(ProcessReaderTest, EitherPartOfTheStartTimeTellsTwoProcessesApart) {
    for (const bool isSecond : {true, false}) {
        ProcessWorld world;
        world.table.add(10, "/bin/worker");
        world.reader->read();
        auto& info = world.table.find(10)->info;
        (isSecond ? info.startSeconds : info.startMicroseconds) += 1;
        world.table.spend(10, second);
        EXPECT_EQ(rowOf(world.readAfter(1), 10).cpuPercent, 0);
    }
}

TEST_F(ProcessReaderTest, ACounterThatWentBackGivesNoShareAndIsTheNewBaseline) {
    table.add(10, "/bin/worker").info.totalUser = 9 * second;
    reader->read();
    table.find(10)->info.totalUser = 4 * second;
    EXPECT_EQ(rowOf(readAfter(1), 10).cpuPercent, 0);
    table.spend(10, second / 4);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 25);
}

TEST_F(ProcessReaderTest, TimesTooLargeToAddSkipTheProcess) {
    table.add(10, "/bin/worker").info.totalUser = largest;
    table.add(20, "/bin/other");
    reader->read();
    EXPECT_THAT(pidsOf(readAfter(1).all), ElementsAre(10, 20));
    table.find(10)->info.totalSystem = 1;
    EXPECT_THAT(pidsOf(readAfter(1).all), ElementsAre(20));
}

TEST_F(ProcessReaderTest, TheLargestDifferenceIsStillAFiniteShare) {
    table.add(10, "/bin/worker");
    reader->read();
    table.find(10)->info.totalUser = largest;
    EXPECT_NEAR(rowOf(readAfter(1), 10).cpuPercent, 1.8446744073709552e12, 1);
}

TEST_F(ProcessReaderTest, TheSameUptimeTwiceTakesABaselineAgain) {
    table.add(10, "/bin/worker");
    reader->read();
    table.spend(10, second);
    EXPECT_EQ(reader->read(), ProcessSample::empty());
    table.spend(10, second / 10);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 10);
}

TEST_F(ProcessReaderTest, AnUptimeThatWentBackTakesABaselineAgain) {
    table.add(10, "/bin/worker");
    reader->read();
    table.spend(10, second);
    EXPECT_EQ(readAfter(-500), ProcessSample::empty());
    table.spend(10, second / 10);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 10);
}

TEST_F(ProcessReaderTest, UnreadableProcessesAreLeftOut) {
    table.add(10, "/bin/a");
    table.add(20, "/bin/b");
    table.find(20)->isReadable = false;
    reader->read();
    EXPECT_THAT(pidsOf(readAfter(1).all), ElementsAre(10));
    table.find(20)->isReadable = true;
    table.spend(20, second);
    const ProcessSample sample = readAfter(1);
    EXPECT_THAT(pidsOf(sample.all), ElementsAre(10, 20));
    EXPECT_EQ(rowOf(sample, 20).cpuPercent, 0) << "what it did before is not known";
}

TEST_F(ProcessReaderTest, AProcessThatMissedACallIsNewAgain) {
    table.add(10, "/bin/a");
    table.add(20, "/bin/b");
    reader->read();
    table.find(20)->isReadable = false;
    readAfter(1);
    table.find(20)->isReadable = true;
    table.spend(20, second);
    EXPECT_EQ(rowOf(readAfter(1), 20).cpuPercent, 0);
}

TEST_F(ProcessReaderTest, FactsOfAnotherSizeAreNone) {
    table.add(10, "/bin/a");
    for (const int size : {0, -1, 231, 233, 1 << 20}) {
        table.infoSize = size;
        EXPECT_EQ(reader->read(), ProcessSample::empty());
    }
    table.infoSize = ProcessTable::taskAllInfoSize;
    EXPECT_EQ(readAfter(1), ProcessSample::empty()) << "there was no baseline yet";
    EXPECT_THAT(readAfter(1).all, SizeIs(1));
}

TEST_F(ProcessReaderTest, ResidentMemoryIsHandedOverWhole) {
    table.add(10, "/bin/a", largest);
    table.add(20, "/bin/b", 0);
    reader->read();
    const ProcessSample sample = readAfter(1);
    EXPECT_EQ(rowOf(sample, 10).residentMemoryBytes, largest);
    EXPECT_THAT(pidsOf(sample.sortedByMemory), ElementsAre(10, 20));
}

TEST_F(ProcessReaderTest, EqualsComeByLowerIdentifierAndEighteenAreKept) {
    for (std::int32_t pid = 40; pid > 20; --pid)
        table.add(pid, "/bin/same", 100);
    table.add(50, "/bin/busy", 200);
    reader->read();
    table.spend(50, second);
    table.spend(30, second);
    const ProcessSample sample = readAfter(1);
    EXPECT_THAT(sample.all, SizeIs(21));
    EXPECT_EQ(sample.all.front().pid, 40) << "in the order of the listing";
    ASSERT_THAT(sample.sortedByCPU, SizeIs(18));
    EXPECT_THAT(pidsOf(sample.sortedByCPU), ElementsAre(30, 50, 21, 22, 23, 24, 25, 26, 27, 28, 29,
                                                        31, 32, 33, 34, 35, 36, 37));
    ASSERT_THAT(sample.sortedByMemory, SizeIs(18));
    EXPECT_EQ(sample.sortedByMemory.front().pid, 50);
    EXPECT_EQ(sample.sortedByMemory.back().pid, 37);
}

TEST_F(ProcessReaderTest, TheShortListsShareTheTextsOfTheFullOne) {
    table.add(10, "/bin/a");
    reader->read();
    const ProcessSample sample = readAfter(1);
    EXPECT_TRUE(sample.sortedByCPU[0].command.isSame(sample.all[0].command));
    EXPECT_TRUE(readAfter(1).all[0].command.isSame(sample.all[0].command));
}

TEST_F(ProcessReaderTest, ResetMakesTheNextCallABaseline) {
    table.add(10, "/bin/a");
    reader->read();
    table.spend(10, second);
    reader->resetDeltas();
    EXPECT_EQ(readAfter(1), ProcessSample::empty());
    table.spend(10, second / 2);
    EXPECT_DOUBLE_EQ(rowOf(readAfter(1), 10).cpuPercent, 50);
}

TEST_F(ProcessReaderTest, ResetKeepsTheNames) {
    table.add(16, "/bin/a");
    reader->read();
    EXPECT_EQ(table.pathLookups, 1);
    reader->resetDeltas();
    table.find(16)->path = "/bin/b";
    readAfter(0.5);
    EXPECT_EQ(rowOf(readAfter(0.5), 16).name.string(), "a");
    EXPECT_EQ(table.pathLookups, 1);
}

TEST_F(ProcessReaderTest, AMachineWithoutAnythingGivesTheEmptySample) {
    ProcessReader onBroken(SimulatedMachine::broken());
    EXPECT_EQ(onBroken.read(), ProcessSample::empty());
    onBroken.resetDeltas();
    EXPECT_EQ(onBroken.read(), ProcessSample::empty());
}

TEST_F(ProcessReaderTest, EveryShareIsFiniteWhateverTheClock) {
    table.add(10, "/bin/a");
    table.add(20, "/bin/b");
    reader->read();
    table.find(20)->info.totalUser = largest;
    const ProcessSample sample = readAfter(1e-9);
    EXPECT_THAT(sample.all, SizeIs(2));
    EXPECT_THAT(sample.all, Each(Field(&ProcessStats::cpuPercent, testing::Ge(0))));
    EXPECT_THAT(sample.all, Each(Field(&ProcessStats::cpuPercent, testing::Lt(1e300))));
}

}  // namespace
}  // namespace vantor::process_reader_test
