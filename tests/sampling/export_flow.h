#pragma once

#include <gtest/gtest.h>

#include <string>
#include <variant>

#include "model/snapshot_document.h"
#include "sampling/fake_export_platform.h"
#include "sampling/fake_world.h"

namespace vantor {

inline constexpr auto exportLabel = "com.kestrone.Vantor.export";

/// A monitor in a wound world, and a user who can be asked where to save.
class SnapshotExportFlowTest : public testing::Test {
  protected:
    SnapshotExportFlowTest() {
        world.monitor = SystemMonitor::make(world.settings, world.machine, world.loop, world.queues,
                                            user.platform());
    }

    SystemMonitor& monitor() { return *world.monitor; }

    /// Sampling is under way and something has been committed.
    void sample() {
        world.start();
        world.advance(std::chrono::seconds{2});
        ASSERT_NE(world.state().snapshot.timestamp, SystemSnapshot::empty().timestamp);
    }

    /// The writing thread's turn, and then the main loop's.
    void finishWriting() {
        ASSERT_TRUE(world.queues->runNext(exportLabel));
        world.loop->runPosted();
    }

    static std::string documentOf(const SystemSnapshot& snapshot) {
        return std::get<std::string>(encodedSnapshot(snapshot));
    }

    FakeWorld world;
    FakeExportPlatform user;
};

}  // namespace vantor
