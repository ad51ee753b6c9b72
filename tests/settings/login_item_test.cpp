#include "settings/login_item.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/fake_serial_queue.h"
#include "settings/autostart_entry.h"
#include "settings/fake_shared_file.h"

namespace vantor::login_item_test {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

class LoginItemTest : public testing::Test {
  protected:
    void goOn() const {
        while (queues->runWaiting() + loop->runPosted() > 0)
            continue;
    }
    void wind(std::chrono::nanoseconds time) const {
        clock->wind(time);
        while (loop->nextDue() <= clock->now())
            loop->runDueTimer();
    }
    bool isOn() const { return item->state().value().isOn; }
    std::string problem() const { return item->state().value().problem; }

    std::string program = "vantor";
    const std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    const std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    const std::shared_ptr<FakeSerialQueueFactory> queues =
        std::make_shared<FakeSerialQueueFactory>();
    const std::shared_ptr<FakeSharedFile> entry = std::make_shared<FakeSharedFile>();
    std::shared_ptr<LoginItem> item =
        LoginItem::make({entry, [this] { return program; }, loop, queues});
};

TEST_F(LoginItemTest, LooksWhenItIsToldAndOnAQueue) {
    entry->bytes = AutostartEntry::textFor("vantor");
    goOn();
    EXPECT_EQ(entry->reads, 0);
    item->look();
    EXPECT_EQ(entry->reads, 0);
    EXPECT_FALSE(isOn());
    goOn();
    EXPECT_TRUE(isOn());
    EXPECT_EQ(problem(), "");
}

TEST_F(LoginItemTest, WritesTheEntryAndRemovesIt) {
    item->set(true);
    EXPECT_EQ(entry->writes, 0) << "not on this thread";
    goOn();
    EXPECT_EQ(entry->bytes, AutostartEntry::textFor("vantor"));
    EXPECT_TRUE(isOn());
    item->set(false);
    goOn();
    EXPECT_EQ(entry->bytes, std::nullopt);
    EXPECT_FALSE(isOn());
}

TEST_F(LoginItemTest, ShowsWhatOthersHaveChanged) {
    item->set(true);
    goOn();
    *entry->bytes += "Hidden=true\n";
    item->look();
    goOn();
    EXPECT_FALSE(isOn());
    item->set(true);
    goOn();
    EXPECT_TRUE(isOn()) << "the user's choice is written anew";
}

TEST_F(LoginItemTest, TheLastOfManyChoicesIsWhatStays) {
    for (const bool choice : {true, false, true, false, true})
        item->set(choice);
    item->look();
    goOn();
    EXPECT_TRUE(isOn());
    EXPECT_TRUE(entry->bytes);
    EXPECT_LE(entry->writes, 2);
}

TEST_F(LoginItemTest, ALookBeforeTheChoiceDoesNotTakeItBack) {
    item->look();
    item->set(true);
    std::vector<bool> shown;
    const auto watching =
        item->state().observe([&](const LoginState& state) { shown.push_back(state.isOn); });
    goOn();
    EXPECT_THAT(shown, testing::ElementsAre(true));
}

TEST_F(LoginItemTest, AFailureIsSaidAndTheTruthShown) {
    entry->writeError = "You don't have permission.";
    item->set(true);
    goOn();
    EXPECT_FALSE(isOn());
    EXPECT_EQ(problem(), "Not changed: you don't have permission.");
    entry->writeError.reset();
    item->set(true);
    goOn();
    EXPECT_TRUE(isOn());
    EXPECT_EQ(problem(), "");
    entry->writeError = "The disk is full.";
    item->set(false);
    goOn();
    EXPECT_TRUE(isOn()) << "it is still there";
    EXPECT_THAT(problem(), HasSubstr("the disk is full"));
}

TEST_F(LoginItemTest, WhatCannotBeReadIsSaid) {
    entry->readError = "You don't have permission.";
    item->look();
    goOn();
    EXPECT_EQ(problem(), "Not known: you don't have permission.");
}

TEST_F(LoginItemTest, AProgramThatCannotBeNamedIsSaid) {
    program.clear();
    item->set(true);
    goOn();
    EXPECT_FALSE(isOn());
    EXPECT_THAT(problem(), HasSubstr("Not changed: the program's own file"));
}

TEST_F(LoginItemTest, ADiskThatDoesNotAnswerIsSaidAfterAWhile) {
    item->set(true);
    wind(1900ms);
    EXPECT_EQ(problem(), "");
    wind(200ms);
    EXPECT_THAT(problem(), HasSubstr("does not answer"));
    EXPECT_FALSE(isOn()) << "as far as anybody knows";
    goOn();
    EXPECT_EQ(problem(), "");
    EXPECT_TRUE(isOn());
    wind(1h);
    EXPECT_EQ(problem(), "");
}

TEST_F(LoginItemTest, ATaskThatIsLeftBehindHarmsNobody) {
    item->set(true);
    item = nullptr;
    goOn();
    wind(1h);
    EXPECT_TRUE(entry->bytes) << "what was begun is done";
}

}  // namespace
}  // namespace vantor::login_item_test
