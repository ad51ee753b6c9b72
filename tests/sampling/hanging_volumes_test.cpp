#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/storage/linux_mounted_volumes.h"
#include "platform/linux/storage/patient_file_systems.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/fake_world.h"
#include "support/fake_file_systems.h"
#include "support/fake_kernel_tree.h"
#include "support/machine_with_volumes.h"
#include "support/threaded_main_loop.h"

/// A mounted file system that stops answering holds up the list of volumes and nothing else.
namespace vantor::hanging_volumes_test {
namespace {

using namespace std::chrono_literals;

class MonitoredVolumes : public testing::Test {
  protected:
    MonitoredVolumes(std::shared_ptr<FileSystems> fileSystems, const std::string& table)
        : machine(std::make_shared<MachineWithVolumes>(
              simulated,
              std::make_shared<LinuxMountedVolumes>(tree.roots(), std::move(fileSystems)))) {
        tree.proc("self/mountinfo", table);
        simulated->hostProcessors().growth = {30, 10, 60, 0};
        simulated->powerSources().onCopyInfo = [reads = powerReads] { ++*reads; };
        settings->setRefreshInterval(0.5);
        monitor = SystemMonitor::make(settings, machine, loop, queues);
    }

    /// Runs the loop until the condition holds, while the machine's clock goes fast; false when it
    /// does not come true.
    bool runUntil(const std::function<bool()>& condition) {
        const auto deadline = std::chrono::steady_clock::now() + 30s;
        bool holds = false;
        std::function<void()> look = [&] {
            clock->wind(20ms);
            holds = condition();
            if (holds || std::chrono::steady_clock::now() > deadline) return loop->stop();
            loop->runAfter(1ms, [&look] { look(); });
        };
        loop->post([&look] { look(); });
        loop->run();
        return holds;
    }

    const DashboardState& state() const { return monitor->dashboardState(); }

    /// What is listed as available, in bytes; absent when it is not listed.
    std::optional<std::uint64_t> available(const std::string& path) const {
        for (const VolumeStats& volume : state().snapshot.volumes) {
            if (volume.path == path) return volume.availableBytes;
        }
        return std::nullopt;
    }

    FakeKernelTree tree;
    std::shared_ptr<std::atomic<int>> powerReads = std::make_shared<std::atomic<int>>(0);
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<SimulatedMachine> simulated = SimulatedMachine::laptop(clock);
    std::shared_ptr<Machine> machine;
    std::shared_ptr<AppSettings> settings = makeSettings();
    std::shared_ptr<ThreadedMainLoop> loop = std::make_shared<ThreadedMainLoop>();
    std::shared_ptr<ThreadedSerialQueueFactory> queues =
        std::make_shared<ThreadedSerialQueueFactory>();
    std::shared_ptr<SystemMonitor> monitor;
};

const std::string disk = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";

class HangingVolumes : public MonitoredVolumes {
  protected:
    HangingVolumes() : HangingVolumes(std::make_shared<FakeFileSystems>()) {}

    std::shared_ptr<std::atomic<bool>> hangs = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<std::atomic<bool>> isStuck = std::make_shared<std::atomic<bool>>(false);

  private:
    explicit HangingVolumes(const std::shared_ptr<FakeFileSystems>& fileSystems)
        : MonitoredVolumes(fileSystems, disk) {
        fileSystems->spaces["/"] = {1, 1000, 600, false, {}};
        fileSystems->onSpace = [hangs = hangs, isStuck = isStuck](const std::string&) {
            if (!*hangs) return;
            *isStuck = true;
            while (true)
                ::pause();
        };
    }
};

TEST_F(HangingVolumes, LeaveTheLastListAndAllOtherReadingsAlone) {
    monitor->start();
    int powerReadsBefore = 0;
    std::uint64_t cpuBefore = 0;
    bool wasListed = false;
    const bool wentOn = runUntil([&] {
        if (!wasListed) {
            if (state().snapshot.volumes.empty()) return false;
            wasListed = true;
            cpuBefore = state().revisions.cpu;
            powerReadsBefore = *powerReads;
            *hangs = true;
            monitor->forceRefresh();
            return false;
        }
        return *isStuck && state().revisions.cpu >= cpuBefore + 5 &&
               *powerReads >= powerReadsBefore + 3;
    });
    EXPECT_TRUE(wasListed);
    EXPECT_TRUE(wentOn) << "the cpu or the power readings stood still";
    ASSERT_EQ(state().snapshot.volumes.size(), 1U);
    EXPECT_EQ(state().snapshot.volumes.front().path, "/");
    EXPECT_EQ(state().snapshot.volumes.front().availableBytes, 600U);
    EXPECT_TRUE(state().snapshot.power);

    const auto before = std::chrono::steady_clock::now();
    monitor.reset();
    queues.reset();
    loop.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - before, 500ms);
}

class HangingServedVolume : public MonitoredVolumes {
  protected:
    HangingServedVolume() : HangingServedVolume(std::make_shared<HangingFileSystems>()) {}
    ~HangingServedVolume() override { fileSystems->goOnForGood(); }

    void say(const std::string& path, std::uint64_t space) {
        fileSystems->say(path, FileSystems::Space{1, 1000, space, false, {}});
    }

    std::shared_ptr<HangingFileSystems> fileSystems;

  private:
    explicit HangingServedVolume(const std::shared_ptr<HangingFileSystems>& hanging)
        : MonitoredVolumes(std::make_shared<PatientFileSystems>(hanging, 20ms),
                           disk + "2 1 8:17 / /stick rw - fuseblk /dev/sdb1 rw\n"),
          fileSystems(hanging) {
        say("/", 600);
        say("/stick", 50);
    }
};

TEST_F(HangingServedVolume, LeavesTheListAliveForTheOthers) {
    std::vector<std::uint64_t> next{300, 400, 500};
    bool wasListed = false;
    bool wasAlwaysListed = true;
    int questions = 0;
    monitor->start();
    const bool wentOn = runUntil([&] {
        if (!wasListed) {
            wasListed = available("/") == 600U && available("/stick") == 50U;
            if (!wasListed) return false;
            fileSystems->hang("/stick");
            questions = fileSystems->questions("/stick");
        } else if (available("/") != next.back()) {
            return false;
        } else {
            next.pop_back();
        }
        wasAlwaysListed = wasAlwaysListed && available("/stick") == 50U;
        if (next.empty()) return true;
        say("/", next.back());
        monitor->forceRefresh();
        return false;
    });
    EXPECT_TRUE(wasListed);
    EXPECT_TRUE(wentOn) << "the list stood still";
    EXPECT_TRUE(wasAlwaysListed);
    EXPECT_LE(fileSystems->questions("/stick"), questions + 1);
}

TEST_F(HangingServedVolume, FromTheStartLeavesTheOthersListed) {
    fileSystems->hang("/stick");
    monitor->start();
    EXPECT_TRUE(runUntil([&] { return available("/") == 600U; }));
    EXPECT_EQ(available("/stick"), std::nullopt);

    const auto before = std::chrono::steady_clock::now();
    monitor.reset();
    EXPECT_TRUE(queues->waitForThreads(10s)) << "a queue waits for the volume that hangs";
    queues.reset();
    loop.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - before, 10s);
}

}  // namespace
}  // namespace vantor::hanging_volumes_test
