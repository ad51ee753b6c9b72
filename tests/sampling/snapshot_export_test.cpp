#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

#include "sampling/commit.h"
#include "sampling/export_flow.h"

/// The user saves the snapshot: question, background write, and an alert if it failed.
namespace vantor::snapshot_export_test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(SnapshotExportFlowTest, AsksForAFileWithTheSnapshotsTimeAsItsName) {
    sample();
    monitor().exportSnapshot();
    ASSERT_THAT(user.requests, SizeIs(1));
    EXPECT_EQ(user.requests[0],
              (SaveRequest{"Export System Snapshot", "Vantor-2026-02-03-090507.json",
                           "application/json", true}));
    EXPECT_THAT(user.named, testing::ElementsAre(world.state().snapshot.timestamp));
    EXPECT_TRUE(monitor().isExportFlowActive());
    EXPECT_FALSE(monitor().isExportWriting());
}

TEST_F(SnapshotExportFlowTest, NamesTheFileAfterTheCurrentTimeWhileNothingIsCommitted) {
    monitor().exportSnapshot();
    EXPECT_THAT(user.named, testing::ElementsAre(world.machine->wallClock().now()));
}

TEST_F(SnapshotExportFlowTest, CalledTwiceQuicklyOpensOneDialog) {
    monitor().exportSnapshot();
    monitor().exportSnapshot();
    world.settle();
    EXPECT_THAT(user.requests, SizeIs(1));
    EXPECT_EQ(user.openDialogs, 1);
}

TEST_F(SnapshotExportFlowTest, CanBeStartedAtOnceAfterACancelledDialog) {
    monitor().exportSnapshot();
    user.cancel();
    EXPECT_FALSE(monitor().isExportFlowActive());
    monitor().exportSnapshot();
    EXPECT_THAT(user.requests, SizeIs(2));
    world.settle();
    EXPECT_EQ(user.openDialogs, 1) << "the first one is gone, the second one is not";
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, TakesAnEmptyDestinationForNone) {
    monitor().exportSnapshot();
    user.confirm("");
    EXPECT_FALSE(monitor().isExportFlowActive());
    EXPECT_FALSE(monitor().isExportWriting());
    world.settle();
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, WritesTheSnapshotOfTheConfirmationAndSaysNothing) {
    sample();
    monitor().exportSnapshot();
    const auto opened = world.state().snapshot.timestamp;
    world.advance(3s);
    ASSERT_NE(world.state().snapshot.timestamp, opened);
    const SystemSnapshot confirmed = world.state().snapshot;
    world.providersRun = false;
    user.confirm("/folder/chosen.json");
    world.machine->hostProcessors().growth = {60, 10, 30, 0};
    world.queues->runNext(queueLabel("cpu"));
    monitor().receiveCPU(CPUStats::empty(), monitor().generation());
    world.loop->runPosted();
    world.clock->wind(commitDelay);
    while (world.loop->runDueTimer()) {
    }
    ASSERT_NE(world.state().snapshot, confirmed) << "sampling goes on during the write";
    finishWriting();
    ASSERT_THAT(user.writes, SizeIs(1));
    EXPECT_EQ(user.writes[0].destination, "/folder/chosen.json");
    EXPECT_EQ(user.writes[0].bytes, documentOf(confirmed));
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, IsActiveUntilTheResultHasArrived) {
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    EXPECT_TRUE(monitor().isExportFlowActive());
    EXPECT_TRUE(monitor().isExportWriting());
    EXPECT_FALSE(monitor().waitForExport(0ms));
    monitor().exportSnapshot();
    EXPECT_THAT(user.requests, SizeIs(1)) << "a write is under way";
    ASSERT_TRUE(world.queues->runNext(exportLabel));
    EXPECT_TRUE(monitor().isExportFlowActive()) << "the result waits in the main loop";
    EXPECT_TRUE(monitor().waitForExport(0ms));
    world.loop->runPosted();
    EXPECT_FALSE(monitor().isExportFlowActive());
    EXPECT_FALSE(monitor().isExportWriting());
    EXPECT_TRUE(monitor().waitForExport(0ms));
    monitor().exportSnapshot();
    EXPECT_THAT(user.requests, SizeIs(2));
}

TEST_F(SnapshotExportFlowTest, WritesOnAThreadOfItsOwn) {
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    world.loop->runPosted();
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_EQ(world.queues->waiting(exportLabel), 1u);
}

TEST_F(SnapshotExportFlowTest, MakesNoThreadBeforeAFileIsChosen) {
    sample();
    monitor().exportSnapshot();
    user.cancel();
    EXPECT_THAT(world.queues->labels(), testing::Not(testing::Contains(exportLabel)));
}

TEST_F(SnapshotExportFlowTest, ShowsAnAlertAfterAFailedWriteAndCanBeStartedAgain) {
    user.writeError = DescribedError{"There is not enough space on the disk."};
    bool wasActive = true;
    user.onAlert = [&] { wasActive = monitor().isExportFlowActive(); };
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    finishWriting();
    ASSERT_THAT(user.alerts, SizeIs(1));
    EXPECT_EQ(user.alerts[0],
              (AlertText{"Snapshot Export Failed", "There is not enough space on the disk."}));
    EXPECT_FALSE(wasActive) << "all is cleared before the alert is shown";
    user.writeError.reset();
    monitor().exportSnapshot();
    ASSERT_THAT(user.requests, SizeIs(2));
    user.confirm("/chosen.json");
    finishWriting();
    EXPECT_THAT(user.writes, SizeIs(1));
    EXPECT_THAT(user.alerts, SizeIs(1));
}

TEST_F(SnapshotExportFlowTest, ShowsAnAlertForANumberThatIsNotFiniteAndWritesNothing) {
    sample();
    CPUStats stats = CPUStats::empty();
    stats.temperatureCelsius = std::numeric_limits<double>::quiet_NaN();
    world.receiveCPU(stats);
    world.advance(commitDelay);
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    finishWriting();
    ASSERT_THAT(user.alerts, SizeIs(1));
    EXPECT_EQ(user.alerts[0].message, "Snapshot Export Failed");
    EXPECT_THAT(user.alerts[0].informativeText,
                testing::HasSubstr("\"cpu.temperatureCelsius\" is not a number"));
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_FALSE(monitor().isExportFlowActive());
}

TEST_F(SnapshotExportFlowTest, ConfirmedWhileSamplingIsPausedWritesTheLastCommittedSnapshot) {
    sample();
    monitor().togglePause();
    const SystemSnapshot committed = world.state().snapshot;
    monitor().exportSnapshot();
    world.advance(5s);
    user.confirm("/chosen.json");
    finishWriting();
    ASSERT_THAT(user.writes, SizeIs(1));
    EXPECT_EQ(user.writes[0].bytes, documentOf(committed));
    EXPECT_TRUE(monitor().isPaused());
}

TEST_F(SnapshotExportFlowTest, WritesTheStandInWhileNothingIsCommitted) {
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    finishWriting();
    ASSERT_THAT(user.writes, SizeIs(1));
    EXPECT_EQ(user.writes[0].bytes, documentOf(SystemSnapshot::empty()));
}

TEST(SnapshotExport, NeedsAPlatformToExportWith) {
    FakeWorld world;
    world.monitor->exportSnapshot();
    EXPECT_FALSE(world.monitor->isExportFlowActive());
}

/// A writer that is asked nothing unless it should be.
struct CountedWrites : AtomicFileWriter {
    int count = 0;
    std::optional<DescribedError> write(const std::filesystem::path&, std::string_view) override {
        ++count;
        return std::nullopt;
    }
};

TEST(SnapshotExport, CancelledBeforeItRunsHasNoErrorEvenIfItCouldNotBeEncoded) {
    const auto files = std::make_shared<CountedWrites>();
    SystemSnapshot snapshot = SystemSnapshot::empty();
    snapshot.system.uptimeSeconds = std::numeric_limits<double>::infinity();
    SnapshotExport cancelled(snapshot, "/chosen.json", files);
    cancelled.cancel();
    EXPECT_EQ(cancelled.run(), std::nullopt);
    EXPECT_EQ(files->count, 0);
    EXPECT_TRUE(cancelled.waitUntilOver(0ms));
    SnapshotExport other(snapshot, "/chosen.json", files);
    EXPECT_FALSE(other.waitUntilOver(0ms));
    EXPECT_TRUE(other.run());
    EXPECT_EQ(files->count, 0);
}

}  // namespace
}  // namespace vantor::snapshot_export_test
