#include "probes/cpu_ticks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

namespace vantor::cpu_ticks_test {
namespace {

constexpr std::uint32_t last = std::numeric_limits<std::uint32_t>::max();

struct GrowthRow {
    const char* name;
    std::uint32_t previous, current;
    std::uint64_t growth;

    friend void PrintTo(const GrowthRow& row, std::ostream* out) { *out << row.name; }
};

class TickGrowth : public testing::TestWithParam<GrowthRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, TickGrowth,
                         testing::Values(GrowthRow{"None", 5, 5, 0}, GrowthRow{"Small", 5, 12, 7},
                                         GrowthRow{"Largest", 0, last, last},
                                         GrowthRow{"WrapByOne", last, 0, 1},
                                         GrowthRow{"WrapBySome", last - 9, 10, 20},
                                         GrowthRow{"WrapAlmostAllAround", 1, 0, last}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(TickGrowth, IsCountedForEachStateByItself) {
    const auto& [name, previous, current, growth] = GetParam();
    const auto of = [](std::uint32_t user, std::uint32_t system, std::uint32_t idle,
                       std::uint32_t nice) {
        return TickSet{user, system, idle, nice};
    };
    const std::uint32_t p = previous, c = current;
    EXPECT_EQ(TickDelta::between(of(p, 1, 1, 1), of(c, 2, 3, 4)), (TickDelta{growth, 1, 2, 3}));
    EXPECT_EQ(TickDelta::between(of(1, p, 1, 1), of(2, c, 3, 4)), (TickDelta{1, growth, 2, 3}));
    EXPECT_EQ(TickDelta::between(of(1, 1, p, 1), of(2, 3, c, 4)), (TickDelta{1, 2, growth, 3}));
    EXPECT_EQ(TickDelta::between(of(1, 1, 1, p), of(2, 3, 4, c)), (TickDelta{1, 2, 3, growth}));
}

TEST(TickDelta, CounterWrappedPast32BitsGivesASmallDifference) {
    const TickDelta delta = TickDelta::between({last - 4, 0, 0, 0}, {5, 0, 0, 0});
    EXPECT_EQ(delta.user, 10U);
    EXPECT_EQ(delta.sum(), 10U);
}

TEST(TickDelta, SumsFourLargestDifferencesWithoutWrapping) {
    const TickDelta delta = TickDelta::between({1, 1, 1, 1}, {0, 0, 0, 0});
    EXPECT_EQ(delta.sum(), 4ULL * last);
}

TEST(TickDeltaDeathTest, ASumPast64BitsEndsTheProgram) {
    EXPECT_DEATH((TickDelta{UINT64_MAX, 1, 0, 0}.sum()), "");
    EXPECT_DEATH((TickDelta{0, 0, UINT64_MAX, 1}.sum()), "");
    EXPECT_DEATH((TickDelta{UINT64_MAX, 0, 1, 0}.sum()), "");
    EXPECT_EQ((TickDelta{UINT64_MAX - 3, 1, 1, 1}.sum()), UINT64_MAX);
}

struct SharesRow {
    const char* name;
    TickDelta delta;
    Percentages shares;

    friend void PrintTo(const SharesRow& row, std::ostream* out) { *out << row.name; }
};

class Shares : public testing::TestWithParam<SharesRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, Shares,
    testing::Values(SharesRow{"Mixed", {10, 5, 80, 5}, {0.20, 0.15, 0.05, 0.80}},
                    SharesRow{"NiceIsUserTime", {0, 0, 75, 25}, {0.25, 0.25, 0, 0.75}},
                    SharesRow{"AllIdle", {0, 0, 9, 0}, {0, 0, 0, 1}},
                    SharesRow{"AllUser", {9, 0, 0, 0}, {1, 1, 0, 0}},
                    SharesRow{"AllSystem", {0, 9, 0, 0}, {1, 0, 1, 0}},
                    SharesRow{"OneTick", {0, 0, 0, 1}, {1, 1, 0, 0}},
                    SharesRow{"Largest", {last, last, last, last}, {0.75, 0.5, 0.25, 0.25}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(Shares, AreThePartsOfTheWholeInterval) {
    const Percentages shares = Percentages::of(GetParam().delta);
    EXPECT_DOUBLE_EQ(shares.total, GetParam().shares.total);
    EXPECT_DOUBLE_EQ(shares.user, GetParam().shares.user);
    EXPECT_DOUBLE_EQ(shares.system, GetParam().shares.system);
    EXPECT_DOUBLE_EQ(shares.idle, GetParam().shares.idle);
}

// The two parts of a busy interval are rounded by themselves; their sum must not pass the whole.
TEST(Percentages, NeverPassOneWhateverTheRounding) {
    for (std::uint64_t user = 1; user < 400; ++user) {
        for (std::uint64_t system = 1; system < 400; ++system) {
            const Percentages shares = Percentages::of({user, system, 0, 0});
            ASSERT_LE(shares.total, 1.0) << user << " + " << system;
            ASSERT_GE(shares.total, 1.0 - 1e-15) << user << " + " << system;
        }
    }
}

struct BusyRow {
    const char* name;
    TickDelta delta;
    double share;

    friend void PrintTo(const BusyRow& row, std::ostream* out) { *out << row.name; }
};

class BusyShare : public testing::TestWithParam<BusyRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, BusyShare,
                         testing::Values(BusyRow{"NoTick", {0, 0, 0, 0}, 0},
                                         BusyRow{"Idle", {0, 0, 50, 0}, 0},
                                         BusyRow{"User", {50, 0, 0, 0}, 1},
                                         BusyRow{"EveryState", {10, 20, 40, 30}, 0.6},
                                         BusyRow{"NiceCounts", {0, 0, 1, 3}, 0.75}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(BusyShare, IsWhatWasNotIdle) {
    EXPECT_DOUBLE_EQ(busyShare(GetParam().delta), GetParam().share);
}

}  // namespace
}  // namespace vantor::cpu_ticks_test
