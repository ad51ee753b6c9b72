#include "app/app_delegate.h"

#include <gtest/gtest.h>

#include "platform/simulated/simulated_machine.h"
#include "support/kept_defaults.h"

namespace vantor::app_delegate_test {
namespace {

class AppDelegateTest : public testing::Test {
  protected:
    std::shared_ptr<KeptDefaults> defaults = std::make_shared<KeptDefaults>();
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    int opened = 0;
    AppDelegate delegate{defaults, machine->processInfo(), [this] { ++opened; }};
};

TEST_F(AppDelegateTest, WithTheSettingNeverWrittenClosingTheWindowLeavesItRunning) {
    EXPECT_FALSE(delegate.applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(AppDelegateTest, WithTheItemOnItKeepsRunning) {
    defaults->values["showMenuBar"] = true;
    EXPECT_FALSE(delegate.applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(AppDelegateTest, WithTheItemOffItEnds) {
    defaults->values["showMenuBar"] = false;
    EXPECT_TRUE(delegate.applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(AppDelegateTest, WhatIsNoBooleanCountsAsNeverWritten) {
    for (const DefaultsStore::Value& odd :
         {DefaultsStore::Value(std::int64_t{0}), DefaultsStore::Value(0.0),
          DefaultsStore::Value(std::string("no"))}) {
        defaults->values["showMenuBar"] = odd;
        EXPECT_FALSE(delegate.applicationShouldTerminateAfterLastWindowClosed());
    }
}

TEST_F(AppDelegateTest, NewerSystemsReopenTheWindowThemselves) {
    EXPECT_TRUE(delegate.applicationShouldHandleReopen(false));
    EXPECT_TRUE(delegate.applicationShouldHandleReopen(true));
    EXPECT_EQ(opened, 0);
}

TEST_F(AppDelegateTest, OlderSystemsHaveItOpenedHere) {
    machine->processInfo().version = {12, 6, 1};
    EXPECT_FALSE(delegate.applicationShouldHandleReopen(false));
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(delegate.applicationShouldHandleReopen(true)) << "then it only comes forward";
    EXPECT_EQ(opened, 2);
}

}  // namespace
}  // namespace vantor::app_delegate_test
