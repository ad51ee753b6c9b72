#include "settings/defaults_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/defaults_run.h"
#include "settings/fake_shared_file.h"

/// Nothing waits for the file of the preferences, and nothing that was set is lost.
namespace vantor::defaults_file_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using Value = DefaultsStore::Value;

class DefaultsFileTest : public testing::Test {
  protected:
    std::shared_ptr<FakeSharedFile> file = std::make_shared<FakeSharedFile>();
    std::optional<DefaultsRun> program;

    void open(std::optional<std::string> bytes = std::nullopt) {
        file->bytes = std::move(bytes);
        program.emplace(file);
    }
    void start(std::optional<std::string> bytes = std::nullopt) {
        open(std::move(bytes));
        program->start();
    }
    DefaultsFile& store() { return program->store(); }
    std::size_t tasks() const { return program->queues->waiting("settings"); }
};

TEST_F(DefaultsFileTest, AnswersWhatIsInTheFile) {
    start("[General]\nnumber=2\ntext=light\n");
    EXPECT_EQ(store().value("number"), Value{std::int64_t{2}});
    EXPECT_EQ(store().value("text"), Value{std::string("light")});
    EXPECT_EQ(store().value("other"), std::nullopt);
    program->goOn();
    EXPECT_EQ(file->writes, 0) << "reading writes nothing";
}

TEST_F(DefaultsFileTest, AnswersAtOnceWhatWasSet) {
    start("number=2\n");
    store().setValue("number", Value{5.0});
    EXPECT_EQ(store().value("number"), Value{5.0}) << "before it is written";
    program->goOn();
    EXPECT_EQ(store().value("number"), Value{std::int64_t{5}}) << "as the file has it";
    EXPECT_EQ(file->bytes, "number=5\n");
}

TEST_F(DefaultsFileTest, TouchesTheFileInTasksAlone) {
    open("number=2\n");
    store().setValue("number", Value{5.0});
    EXPECT_EQ(file->reads + file->writes, 0);
    EXPECT_FALSE(store().waitForRead(0ms));
    EXPECT_FALSE(store().waitForWrite(0ms));
    EXPECT_EQ(file->reads + file->writes, 0);
}

TEST_F(DefaultsFileTest, HasAQueueOnlyWhileThereIsWork) {
    start();
    EXPECT_THAT(program->queues->labels(), ElementsAre("settings"));
    store().setValue("a", Value{true});
    program->goOn();
    EXPECT_THAT(program->queues->labels(), ElementsAre("settings", "settings"));
}

TEST_F(DefaultsFileTest, AFileThatHangsKeepsNobody) {
    open("number=2\n");
    EXPECT_FALSE(store().waitForRead(0ms));
    EXPECT_EQ(store().value("number"), std::nullopt);
    store().setValue("number", Value{true});
    EXPECT_EQ(store().value("number"), Value{true});
    EXPECT_EQ(tasks(), 1U) << "nothing is written before the file has been read";
    EXPECT_EQ(program->notSaved(), "");
    program->wind(2s);
    EXPECT_EQ(program->notSaved(), "The disk does not answer.");
    program->end();
    program->queues->runWaiting();
    program->loop->runPosted();
    EXPECT_EQ(file->bytes, "number=2\n");
}

TEST_F(DefaultsFileTest, WhatIsReadLateIsToldAndWhatWasSetWins) {
    open("one=1\ntwo=2\n");
    int told = 0;
    store().setOnLateRead([&] { ++told; });
    EXPECT_FALSE(store().waitForRead(0ms));
    store().setValue("two", Value{std::int64_t{20}});
    program->wind(1min);
    EXPECT_EQ(told, 0);
    program->goOn();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(store().value("one"), Value{std::int64_t{1}});
    EXPECT_EQ(store().value("two"), Value{std::int64_t{20}});
    EXPECT_EQ(file->bytes, "one=1\ntwo=20\n");
    EXPECT_EQ(program->notSaved(), "");
}

TEST_F(DefaultsFileTest, WhatIsReadInTimeIsNotTold) {
    open("one=1\n");
    int told = 0;
    store().setOnLateRead([&] { ++told; });
    program->start();
    store().setValue("two", Value{true});
    program->goOn();
    EXPECT_EQ(told, 0);
}

TEST_F(DefaultsFileTest, ANumberOfChangesIsOneWriteOfTheLastValues) {
    start();
    store().setValue("a", Value{std::int64_t{1}});
    for (int i = 2; i <= 9; ++i)
        store().setValue("a", Value{std::int64_t{i}});
    store().setValue("b", Value{true});
    EXPECT_EQ(tasks(), 1U) << "at most one at a time";
    program->queues->runWaiting();
    EXPECT_EQ(file->bytes, "[General]\na=1\n");
    program->loop->runPosted();
    EXPECT_EQ(tasks(), 1U);
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=9\nb=true\n");
    EXPECT_EQ(file->writes, 2);
}

TEST_F(DefaultsFileTest, AValueThatIsThereIsNotWrittenAgain) {
    start("[General]\na=1\n");
    store().setValue("a", Value{std::int64_t{1}});
    program->goOn();
    EXPECT_EQ(file->writes, 0);
}

TEST_F(DefaultsFileTest, KeepsWhatAnotherProgramWrote) {
    start("[General]\na=1\nb=1\n");
    file->onHold = [&] { file->bytes = "[General]\na=2\nb=2\nc=2\n"; };
    store().setValue("b", Value{std::int64_t{3}});
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=2\nb=3\nc=2\n");
    EXPECT_TRUE(file->wasHeldForWrite) << "reading and writing are one step for others";
    EXPECT_EQ(store().value("a"), Value{std::int64_t{2}});
}

TEST_F(DefaultsFileTest, AWriteThatHangsIsToldAndTheLastValueFollows) {
    start();
    store().setValue("a", Value{std::int64_t{1}});
    program->wind(1s);
    store().setValue("a", Value{std::int64_t{2}});
    EXPECT_EQ(program->notSaved(), "");
    program->wind(1s);
    EXPECT_EQ(program->notSaved(), "The disk does not answer.");
    EXPECT_EQ(tasks(), 1U);
    program->goOn();
    EXPECT_EQ(program->notSaved(), "");
    EXPECT_EQ(file->bytes, "[General]\na=2\n");
}

TEST_F(DefaultsFileTest, AFileThatCannotBeReadIsNotOverwritten) {
    file->readError = "The disk could not be written to.";
    start("secret");
    EXPECT_EQ(program->notSaved(), "") << "nobody has changed anything";
    int told = 0;
    store().setOnLateRead([&] { ++told; });
    store().setValue("a", Value{true});
    program->goOn();
    EXPECT_EQ(program->notSaved(), "The disk could not be written to.");
    EXPECT_EQ(file->bytes, "secret");
    EXPECT_EQ(file->writes, 0);
    file->readError.reset();
    file->bytes = "b=1\n";
    program->wind(30s);
    program->goOn();
    EXPECT_EQ(file->bytes, "b=1\na=true\n");
    EXPECT_EQ(told, 1) << "what is in it is known now";
    EXPECT_EQ(store().value("b"), Value{std::int64_t{1}});
}

TEST_F(DefaultsFileTest, WhatIsDamagedIsPutAsideAtOnce) {
    start("[Gener");
    EXPECT_EQ(file->aside, "[Gener");
    store().setValue("a", Value{true});
    program->goOn();
    EXPECT_EQ(file->bytes, "[General]\na=true\n");
}

TEST_F(DefaultsFileTest, WhatAnotherProgramHasMendedIsNotPutAside) {
    file->onHold = [&] { file->bytes = "a=1\n"; };
    start("[Gener");
    EXPECT_EQ(file->aside, std::nullopt);
    EXPECT_EQ(store().value("a"), Value{std::int64_t{1}});
}

TEST_F(DefaultsFileTest, DamageThatCannotBePutAsideStaysAndIsTold) {
    file->asideError = "The disk can only be read.";
    start("[Gener");
    store().setValue("a", Value{true});
    program->goOn();
    EXPECT_EQ(file->bytes, "[Gener");
    EXPECT_EQ(program->notSaved(), "The disk can only be read.");
    EXPECT_EQ(store().value("a"), Value{true}) << "for this run";
}

TEST_F(DefaultsFileTest, AFileDoesNotGrowBeyondWhatWouldBeRead) {
    start(std::string(IniText::largest - 3, '\n'));
    store().setValue("a", Value{true});
    program->goOn();
    EXPECT_EQ(file->writes, 0);
    EXPECT_EQ(program->notSaved(), "The file would be too large.");
}

TEST_F(DefaultsFileTest, AtTheEndAllThatWasSetIsWaitedFor) {
    open("b=1\n");
    store().setValue("a", Value{true});
    program->queues->runWaiting();
    EXPECT_FALSE(store().waitForWrite(0ms)) << "read, but not written";
    program->queues->runWaiting();
    EXPECT_TRUE(store().waitForWrite(0ms));
    EXPECT_EQ(file->bytes, "b=1\na=true\n");
    EXPECT_TRUE(store().waitForWrite(0ms)) << "nothing is left";
}

TEST_F(DefaultsFileTest, LeavesNothingInTheMainLoopBehind) {
    start();
    store().setValue("a", Value{true});
    program->end();
    EXPECT_EQ(program->loop->timerCount(), 0U);
    program->queues->runWaiting();
    program->loop->runPosted();
    EXPECT_EQ(file->bytes, "[General]\na=true\n") << "what was begun is brought to its end";
}

}  // namespace
}  // namespace vantor::defaults_file_test
