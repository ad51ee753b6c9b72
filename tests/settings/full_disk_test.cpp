#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/defaults_file.h"
#include "settings/defaults_run.h"
#include "settings/fake_shared_file.h"

/// What does not fit on a disk is kept, told and tried again.
namespace vantor::full_disk_test {
namespace {

using namespace std::chrono_literals;
using Value = DefaultsStore::Value;

class FullDisk : public testing::Test {
  protected:
    std::shared_ptr<FakeSharedFile> file = std::make_shared<FakeSharedFile>();
    std::optional<DefaultsRun> program;

    DefaultsFile& store() { return program->store(); }

    void start() {
        file->bytes = "[General]\na=1\n";
        program.emplace(file);
        program->start();
    }
    void fill() {
        start();
        file->writeError = "There is not enough space on the disk.";
        store().setValue("a", Value{std::int64_t{2}});
        program->goOn();
    }
};

TEST_F(FullDisk, IsToldAndCostsNoValue) {
    fill();
    EXPECT_EQ(program->notSaved(), "There is not enough space on the disk.");
    EXPECT_EQ(store().value("a"), Value{std::int64_t{2}});
    EXPECT_EQ(file->bytes, "[General]\na=1\n");
    EXPECT_EQ(file->writes, 1) << "it is not tried again at once";
}

TEST_F(FullDisk, IsTriedAgainAfterHalfAMinute) {
    fill();
    file->writeError.reset();
    program->wind(29s);
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=1\n");
    program->wind(1s);
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=2\n");
    EXPECT_EQ(program->notSaved(), "");
    EXPECT_EQ(program->loop->timerCount(), 0U) << "nothing is left to be done";
}

TEST_F(FullDisk, IsTriedEveryHalfMinuteAsLongAsItTakes) {
    fill();
    for (int i = 0; i < 10; ++i) {
        program->wind(30s);
        program->goOn();
    }
    EXPECT_EQ(file->writes, 11);
}

TEST_F(FullDisk, IsTriedAgainWithTheNextChange) {
    fill();
    file->writeError.reset();
    store().setValue("b", Value{true});
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=2\nb=true\n");
    EXPECT_EQ(program->notSaved(), "");
}

TEST_F(FullDisk, IsTriedAgainForWhatWasSetMeanwhile) {
    start();
    file->writeError = "There is not enough space on the disk.";
    store().setValue("a", Value{std::int64_t{2}});
    store().setValue("b", Value{true});
    program->queues->runWaiting();
    file->writeError.reset();
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=2\nb=true\n");
}

TEST_F(FullDisk, IsTriedAgainAtTheEnd) {
    fill();
    file->writeError.reset();
    store().tryAgain();
    EXPECT_FALSE(store().waitForWrite(0ms)) << "it is under way";
    program->queues->runWaiting();
    EXPECT_TRUE(store().waitForWrite(0ms)) << "without the main loop";
    EXPECT_EQ(file->bytes, "[General]\na=2\n");
}

TEST_F(FullDisk, IsNotWaitedForAtTheEnd) {
    fill();
    store().tryAgain();
    program->queues->runWaiting();
    EXPECT_FALSE(store().waitForWrite(1min));
    EXPECT_EQ(file->writes, 2);
}

TEST_F(FullDisk, DoesNotBringAnOlderValueBack) {
    start();
    file->writeError = "There is not enough space on the disk.";
    store().setValue("a", Value{std::int64_t{2}});
    store().setValue("a", Value{std::int64_t{3}});
    program->goOn();
    EXPECT_EQ(store().value("a"), Value{std::int64_t{3}});
    file->writeError.reset();
    program->wind(30s);
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=3\n");
}

}  // namespace
}  // namespace vantor::full_disk_test
