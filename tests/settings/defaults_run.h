#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/posix_atomic_file_writer.h"
#include "platform/posix/posix_shared_file.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"
#include "settings/defaults_file.h"
#include "support/temporary_folder.h"

namespace vantor {

/// A run of a program with preferences in a file: its queue and its main loop go on when told.
class DefaultsRun {
  public:
    explicit DefaultsRun(std::shared_ptr<SharedFile> file)
        : store_(DefaultsFile::open({std::move(file), loop, queues, "settings"})) {}

    /// All that is to be done, until nothing is.
    void goOn() const {
        while (queues->runWaiting() + loop->runPosted() > 0)
            continue;
    }
    /// The file has been read, or could not be.
    void start() const {
        queues->runWaiting();
        EXPECT_TRUE(store_->waitForRead(std::chrono::milliseconds::zero()));
        loop->runPosted();
    }
    void wind(std::chrono::nanoseconds time) const {
        const auto end = clock->now() + time;
        while (loop->nextDue() <= end) {
            clock->setNow(std::max(clock->now(), loop->nextDue()));
            loop->runDueTimer();
        }
        clock->setNow(end);
    }
    DefaultsFile& store() const { return *store_; }
    std::shared_ptr<DefaultsFile> shared() const { return store_; }
    std::string notSaved() const { return store_->notSaved().value(); }
    void end() { store_ = nullptr; }

    const std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    const std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    const std::shared_ptr<FakeSerialQueueFactory> queues =
        std::make_shared<FakeSerialQueueFactory>();

  private:
    std::shared_ptr<DefaultsFile> store_;
};

/// A folder for one test's preferences.
class DefaultsOnDisk : public testing::Test {
  protected:
    using Value = DefaultsStore::Value;

    TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "vantor" / "settings.ini";

    void write(std::string_view bytes) const {
        std::filesystem::create_directories(file.parent_path());
        writeFile(file, bytes);
    }
    std::string contents() const { return contentOf(file); }
    std::filesystem::path aside(int number) const {
        return file.string() + ".damaged-" + std::to_string(number);
    }

    static DefaultsRun runOn(const std::filesystem::path& path) {
        return DefaultsRun(
            std::make_shared<PosixSharedFile>(path, std::make_shared<PosixAtomicFileWriter>()));
    }
    /// Has read the file.
    DefaultsRun run() const {
        DefaultsRun run = runOn(file);
        run.start();
        return run;
    }
    /// What the next run reads.
    std::optional<Value> stored(std::string_view key) const { return run().store().value(key); }
    void store(std::string_view key, const Value& value) const {
        const DefaultsRun program = run();
        program.store().setValue(key, value);
        program.goOn();
    }
};

}  // namespace vantor
