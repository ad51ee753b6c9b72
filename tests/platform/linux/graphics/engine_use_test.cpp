#include "platform/linux/graphics/engine_use.h"

#include <gtest/gtest.h>

#include <string>

namespace vantor::engine_use_test {
namespace {

constexpr std::uint64_t second = 1'000'000'000;

class EngineUse : public testing::Test {
  protected:
    /// A look at a client's text without what all have in common.
    void look(ClientEngines& client, double now, const std::string& text) {
        const std::string whole = "drm-client-id:\t1\n" + text;
        const auto info = DRMFdInfo::parse(whole);
        ASSERT_TRUE(info) << text;
        client.measure(*info, now, shares);
    }
    static std::string busy(const std::string& engine, std::uint64_t nanoseconds) {
        return "drm-engine-" + engine + ":\t" + std::to_string(nanoseconds) + " ns\n";
    }
    static std::string cycles(const std::string& engine, std::uint64_t done, std::uint64_t all) {
        return "drm-cycles-" + engine + ":\t" + std::to_string(done) + "\ndrm-total-cycles-" +
               engine + ":\t" + std::to_string(all) + "\n";
    }

    EngineShares shares;
    ClientEngines one;
    ClientEngines other;
};

TEST_F(EngineUse, OfTheFirstLookIsUnknown) {
    EXPECT_EQ(shares.busiest(), std::nullopt);
    look(one, 1, busy("render", 500 * second));
    EXPECT_EQ(shares.busiest(), std::nullopt);
}

TEST_F(EngineUse, IsTheGrowthSinceTheLastLook) {
    look(one, 1, busy("render", 500 * second));
    look(one, 3, busy("render", 501 * second));
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.5);
    shares.clear();
    look(one, 7, busy("render", 501 * second));
    EXPECT_EQ(shares.busiest(), 0);
}

TEST_F(EngineUse, IsThatOfTheBusiestClassOverAllClients) {
    look(one, 1, busy("render", 0) + busy("video", 0));
    look(other, 1, busy("render", 0) + busy("video", 0));
    look(one, 2, busy("render", second / 4) + busy("video", second / 10));
    look(other, 2, busy("render", second / 4) + busy("video", second / 5));
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.5);
}

TEST_F(EngineUse, IsSharedByTheEnginesOfAClass) {
    const std::string two = "drm-engine-capacity-video:\t2\n";
    look(one, 1, busy("video", 0) + two);
    look(one, 2, busy("video", second) + two);
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.5);
}

TEST_F(EngineUse, IsNeverMoreThanAll) {
    look(one, 1, busy("render", 0));
    look(other, 1, busy("render", 0));
    look(one, 2, busy("render", 50 * second));
    EXPECT_EQ(shares.busiest(), 1);
    look(other, 2, busy("render", second));
    EXPECT_EQ(shares.busiest(), 1);
}

TEST_F(EngineUse, OfACounterThatStepsBackIsNothing) {
    look(one, 1, busy("render", 500 * second));
    look(one, 2, busy("render", 5));
    EXPECT_EQ(shares.busiest(), 0);
    shares.clear();
    look(one, 3, busy("render", 5 + second / 4));
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.25);
}

TEST_F(EngineUse, OfAnEngineThatIsNewIsNothing) {
    look(one, 1, busy("render", 0));
    look(one, 2, busy("video", 500 * second) + busy("render", 0));
    EXPECT_EQ(shares.busiest(), 0);
}

TEST_F(EngineUse, InCyclesNeedsNoClock) {
    look(one, 1, cycles("rcs", 100, 1000));
    look(one, 2, cycles("rcs", 400, 2000));
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.3);
    shares.clear();
    look(one, 3, cycles("rcs", 400, 2000));
    EXPECT_EQ(shares.busiest(), 0);
    shares.clear();
    look(one, 4, cycles("rcs", 5, 10));
    EXPECT_EQ(shares.busiest(), 0);
    shares.clear();
    look(one, 5, cycles("rcs", 1005, 110));
    EXPECT_EQ(shares.busiest(), 1);
}

TEST_F(EngineUse, OfAClientThatStaysAsItIsIsNothing) {
    one.stayIdle(1, shares);
    EXPECT_EQ(shares.busiest(), std::nullopt);
    look(one, 1, busy("render", 5));
    one.stayIdle(2, shares);
    EXPECT_EQ(shares.busiest(), 0);
    shares.clear();
    look(one, 3, busy("render", 5 + second / 2));
    EXPECT_DOUBLE_EQ(*shares.busiest(), 0.5);
}

TEST_F(EngineUse, IsUnknownWhenNoTimeHasGoneBy) {
    look(one, 1, busy("render", 0));
    look(one, 1, busy("render", second));
    EXPECT_EQ(shares.busiest(), std::nullopt);
    look(one, 0, busy("render", 2 * second));
    EXPECT_EQ(shares.busiest(), std::nullopt);
}

}  // namespace
}  // namespace vantor::engine_use_test
