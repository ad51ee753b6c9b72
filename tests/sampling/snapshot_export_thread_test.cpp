#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include "model/snapshot_document.h"
#include "platform/native_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/fake_export_platform.h"
#include "sampling/fake_world.h"
#include "support/temporary_folder.h"
#include "support/threaded_main_loop.h"

/// Exports by real threads onto real disks, and onto one that hangs.
namespace vantor::snapshot_export_thread_test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// A disk that answers when it is let.
class HeldFiles : public AtomicFileWriter {
  public:
    std::promise<void> asked;
    std::promise<void> let;
    std::thread::id thread;

    std::optional<DescribedError> write(const std::filesystem::path&, std::string_view) override {
        thread = std::this_thread::get_id();
        asked.set_value();
        let.get_future().wait();
        return std::nullopt;
    }
};

class ThreadedExport : public testing::Test {
  protected:
    void make(std::shared_ptr<AtomicFileWriter> files) {
        ExportPlatform platform = user.platform();
        platform.files = std::move(files);
        monitor = SystemMonitor::make(makeSettings(), SimulatedMachine::laptop(), loop, queues,
                                      std::move(platform));
    }

    void exportTo(const std::filesystem::path& destination) {
        monitor->exportSnapshot();
        user.confirm(destination);
    }

    FakeExportPlatform user;
    std::shared_ptr<ThreadedMainLoop> loop = std::make_shared<ThreadedMainLoop>();
    std::shared_ptr<ThreadedSerialQueueFactory> queues =
        std::make_shared<ThreadedSerialQueueFactory>(setUtilityPriority);
    std::shared_ptr<SystemMonitor> monitor;
};

TEST_F(ThreadedExport, WritesTheWholeDocumentToTheDisk) {
    const TemporaryFolder folder;
    make(makeNativeFileWriter());
    exportTo(folder.path() / "chosen.json");
    EXPECT_TRUE(monitor->waitForExport(20s));
    EXPECT_EQ(contentOf(folder.path() / "chosen.json"),
              std::get<std::string>(encodedSnapshot(SystemSnapshot::empty())));
}

TEST_F(ThreadedExport, NeverHoldsTheMainThreadUpForADiskThatHangs) {
    const auto disk = std::make_shared<HeldFiles>();
    make(disk);
    const auto before = Clock::now();
    exportTo("/chosen.json");
    EXPECT_LT(Clock::now() - before, 500ms);
    disk->asked.get_future().wait();
    EXPECT_NE(disk->thread, std::this_thread::get_id());
    EXPECT_FALSE(monitor->waitForExport(1ms));
    const auto end = Clock::now();
    monitor.reset();
    EXPECT_LT(Clock::now() - end, 500ms);
    disk->let.set_value();
    EXPECT_TRUE(queues->waitForThreads(20s));
}

TEST_F(ThreadedExport, EndsItsThreadWithTheResult) {
    const TemporaryFolder folder;
    make(makeNativeFileWriter());
    exportTo(folder.path() / "chosen.json");
    ASSERT_TRUE(monitor->waitForExport(20s));
    std::function<void()> stopOnceIdle = [&] {
        if (!monitor->isExportFlowActive()) return loop->stop();
        loop->runAfter(1ms, [&] { stopOnceIdle(); });
    };
    loop->post([&] { stopOnceIdle(); });
    loop->run();
    EXPECT_FALSE(monitor->isExportFlowActive());
    EXPECT_TRUE(queues->waitForThreads(20s)) << "while the monitor lives on";
}

TEST_F(ThreadedExport, IsWholeOrNotThereWhenTheMonitorEndsAtAnyMoment) {
    const TemporaryFolder folder;
    const std::string whole = std::get<std::string>(encodedSnapshot(SystemSnapshot::empty()));
    int written = 0;
    for (int attempt = 0; attempt < 60; ++attempt) {
        const auto file = folder.path() / "chosen.json";
        writeFile(file, "old");
        make(makeNativeFileWriter());
        const auto begun = Clock::now();
        exportTo(file);
        // By the clock: on a busy machine each turn takes as long as the others' turns.
        while (Clock::now() - begun < attempt * 20us)
            std::this_thread::yield();
        monitor.reset();
        ASSERT_TRUE(queues->waitForThreads(20s));
        const std::string content = contentOf(file);
        EXPECT_TRUE(content == "old" || content == whole) << content;
        written += content == whole;
        EXPECT_EQ(folder.names().size(), 1u);
    }
    RecordProperty("written", written);
}

}  // namespace
}  // namespace vantor::snapshot_export_thread_test
