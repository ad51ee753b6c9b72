#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "sampling/export_flow.h"

/// The monitor's end at each step of an export.
namespace vantor::snapshot_export_end_test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

TEST_F(SnapshotExportFlowTest, ClosesItsDialogWhenTheMonitorEnds) {
    monitor().exportSnapshot();
    world.monitor.reset();
    EXPECT_EQ(user.openDialogs, 0);
}

TEST_F(SnapshotExportFlowTest, DoesNothingForADialogThatEndsAfterTheMonitor) {
    monitor().exportSnapshot();
    world.monitor.reset();
    user.confirm("/chosen.json");
    world.settle();
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, WritesNothingWhenTheMonitorEndedBeforeTheWriteBegan) {
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    world.monitor.reset();
    finishWriting();
    EXPECT_THAT(user.writes, IsEmpty());
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, FinishesAWriteThatHadBegunWhenTheMonitorEndedAndShowsNothing) {
    user.onWrite = [&] { world.monitor.reset(); };
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    finishWriting();
    EXPECT_EQ(world.monitor, nullptr);
    EXPECT_THAT(user.writes, SizeIs(1));
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, ShowsNoAlertWhenTheMonitorEndsWithTheResultUnderWay) {
    user.writeError = DescribedError{"no"};
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    ASSERT_TRUE(world.queues->runNext(exportLabel));
    world.monitor.reset();
    world.loop->runPosted();
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(SnapshotExportFlowTest, LetsTheMonitorEndWhileTheAlertIsRead) {
    user.writeError = DescribedError{"no"};
    const std::weak_ptr<SystemMonitor> weak = world.monitor;
    bool ended = false;
    user.onAlert = [&] {
        world.monitor.reset();
        ended = weak.expired();
    };
    monitor().exportSnapshot();
    user.confirm("/chosen.json");
    finishWriting();
    EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace vantor::snapshot_export_end_test
