#include "platform/linux/graphics/card_back_off.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/fake_graphics.h"

namespace vantor::card_back_off_test {
namespace {

TEST(AutosuspendDelay, IsToldInMilliseconds) {
    EXPECT_EQ(parseAutosuspendDelay("5000\n"), 5.0);
    EXPECT_EQ(parseAutosuspendDelay("0"), 0.0);
    for (const char* const text : {"-1\n", "", "\n", "x", "5 s", "9223372036854775808"})
        EXPECT_EQ(parseAutosuspendDelay(text), std::nullopt) << text;
}

class RestOfACard : public testing::Test {
  protected:
    RestOfACard() { rest.setDelay(5); }

    CardBackOff rest;
};

TEST_F(RestOfACard, BeginsWhenItDidNothingTwice) {
    rest.note(1, 0);
    EXPECT_FALSE(rest.isResting(2));
    rest.note(2, 0);
    EXPECT_TRUE(rest.isResting(3));
    EXPECT_TRUE(rest.isResting(8));
    EXPECT_FALSE(rest.isResting(8.5));
}

TEST_F(RestOfACard, DoesNotBeginWhileItWorks) {
    for (int now = 1; now < 100; now += 2) {
        rest.note(now, 0);
        rest.note(now + 1, 1);
        EXPECT_FALSE(rest.isResting(now + 2));
    }
}

TEST_F(RestOfACard, BeginsWhenNobodyTellsWhatItDoes) {
    rest.note(1, std::nullopt);
    rest.note(2, std::nullopt);
    EXPECT_TRUE(rest.isResting(3));
}

TEST_F(RestOfACard, IsNoneForOneThatNeverSleeps) {
    rest.setDelay(std::nullopt);
    for (int now = 1; now < 10; ++now)
        rest.note(now, 0);
    EXPECT_FALSE(rest.isResting(10));
}

TEST_F(RestOfACard, ThroughWhichItStayedAwakeIsNotRepeatedSoon) {
    rest.note(1, 0);
    rest.note(2, 0);
    ASSERT_FALSE(rest.isResting(9));
    for (int now = 9; now < 69; ++now) {
        rest.note(now, 0);
        EXPECT_FALSE(rest.isResting(now)) << now;
    }
    rest.note(69, 0);
    EXPECT_TRUE(rest.isResting(70));
}

TEST_F(RestOfACard, IsOverWhenItFallsAsleep) {
    rest.note(1, 0);
    rest.note(2, 0);
    ASSERT_TRUE(rest.isResting(3));
    rest.reset();
    EXPECT_FALSE(rest.isResting(4));
    rest.note(4, 0);
    rest.note(5, 0);
    EXPECT_TRUE(rest.isResting(6));
}

class IdleGraphicsCard : public testing::Test {
  protected:
    static constexpr const char* place = "0000:03:00.0";

    IdleGraphicsCard() {
        graphics.card(0, place, "1002:73bf", "amdgpu",
                      {{"gpu_busy_percent", "0"},
                       {"power/control", "auto"},
                       {"power/autosuspend_delay_ms", "5000"}});
    }
    /// How many of so many passes a second apart told how busy the card is.
    int told(int passes) {
        int told = 0;
        for (int i = 0; i < passes; ++i)
            told += graphics.figure("Device Utilization %") ? 1 : 0;
        return told;
    }

    FakeGraphics graphics;
};

TEST_F(IdleGraphicsCard, IsLeftAloneUntilItSleeps) {
    EXPECT_EQ(told(2), 2);
    EXPECT_EQ(told(6), 0);
    graphics.power(place, "suspended");
    EXPECT_EQ(told(5), 0);
    graphics.power(place, "active");
    EXPECT_EQ(told(2), 2);
}

TEST_F(IdleGraphicsCard, ThatStaysAwakeIsAskedForAMinute) {
    told(2);
    EXPECT_EQ(told(6), 0);
    EXPECT_EQ(told(60), 60);
}

TEST_F(IdleGraphicsCard, ThatWorksIsAskedAllTheTime) {
    graphics.file(place, "gpu_busy_percent", "1");
    EXPECT_EQ(told(20), 20);
}

TEST_F(IdleGraphicsCard, ThatIsAlwaysOnIsAskedAllTheTime) {
    graphics.file(place, "power/control", "on");
    EXPECT_EQ(told(20), 20);
}

TEST_F(IdleGraphicsCard, ThatShowsPicturesIsAskedAllTheTime) {
    graphics.file(place, "drm/card0/card0-DP-1/enabled", "enabled");
    EXPECT_EQ(told(20), 20);
}

TEST_F(IdleGraphicsCard, WhoseConnectorsAreNotInUseIsLeftAlone) {
    graphics.file(place, "drm/card0/card0-DP-1/enabled", "disabled");
    EXPECT_EQ(told(8), 2);
}

TEST_F(IdleGraphicsCard, ThatMayOnlySleepAfterLongIsAskedAllTheTime) {
    for (const char* const delay : {"60000", "-1", "x"}) {
        graphics.file(place, "power/autosuspend_delay_ms", delay);
        graphics.devices();
        EXPECT_EQ(told(9), 9) << delay;
    }
}

TEST_F(IdleGraphicsCard, WhoseDriverIsNotAskedNeedsNoRest) {
    FakeGraphics other;
    other.card(0, "0000:00:02.0", "8086:5917", "i915", {{"power/control", "auto"}});
    other.node("renderD128", "0000:00:02.0");
    other.client(50, 3, "renderD128", "drm-client-id:\t1\ndrm-engine-render:\t5 ns\n");
    other.pass();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(other.figure("Device Utilization %"), 0) << i;
}

}  // namespace
}  // namespace vantor::card_back_off_test
