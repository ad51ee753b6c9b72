#include "platform/linux/processes/reclaim_watch.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::reclaim_watch_test {
namespace {

struct Row {
    const char* name;
    const char* text;
    std::optional<std::uint64_t> count;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class ReclaimText : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ReclaimText,
    testing::Values(Row{"Whole",
                        "nr_free_pages 9\npgfree 7\npswpin 5\npswpout 1\npgsteal_kswapd 20\n"
                        "pgsteal_direct 300\nthp_collapse_alloc 4000\nthp_collapse_alloc_failed 6\n"
                        "thp_underused_split_page 50000\n",
                        54321},
                    Row{"OfOldKernels", "pgsteal_kswapd_normal 2\npgsteal_direct_movable 3\n", 5},
                    Row{"Zero", "pgsteal_kswapd 0\n", 0}, Row{"Empty", "", std::nullopt},
                    Row{"NoneTakenBack", "pswpout 1\nthp_collapse_alloc 4\n", std::nullopt},
                    Row{"CutInALine", "pgsteal_kswapd 1\npgsteal_direct 2", std::nullopt},
                    Row{"NoNumber", "pgsteal_kswapd\npgsteal_direct x\n", std::nullopt},
                    Row{"Negative", "pgsteal_kswapd -1\n", std::nullopt},
                    Row{"TooLarge", "pgsteal_kswapd 18446744073709551616\n", std::nullopt},
                    Row{"MoreBehindIt", "pgsteal_kswapd 1 2\n", std::nullopt},
                    Row{"SumThatWraps", "pgsteal_kswapd 18446744073709551615\npgsteal_direct 3\n",
                        2}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(ReclaimText, IsSummedUp) {
    EXPECT_EQ(parseReclaimCount(GetParam().text), GetParam().count);
}

class ReclaimWatchTest : public testing::Test {
  protected:
    void say(int taken) {
        tree.proc("vmstat", "pgfree " + std::to_string(++freed_) + "\npgsteal_direct " +
                                std::to_string(taken) + "\n");
    }

    FakeKernelTree tree;
    ReclaimWatch watch{tree.roots()};

  private:
    int freed_ = 0;
};

TEST_F(ReclaimWatchTest, WhatWasTakenBeforeTheFirstLookDoesNotCount) {
    say(1000);
    EXPECT_TRUE(watch.isCalm(50));
    say(1000);
    EXPECT_TRUE(watch.isCalm(51));
}

TEST_F(ReclaimWatchTest, IsCalmAgainHalfAMinuteAfterTheLastPagesWereTaken) {
    say(1);
    watch.isCalm(50);
    say(2);
    EXPECT_FALSE(watch.isCalm(52));
    say(3);
    EXPECT_FALSE(watch.isCalm(60));
    EXPECT_FALSE(watch.isCalm(90));
    EXPECT_TRUE(watch.isCalm(90.1));
}

TEST_F(ReclaimWatchTest, LooksOnceASecond) {
    say(1);
    watch.isCalm(50);
    say(2);
    EXPECT_TRUE(watch.isCalm(50.9));
    EXPECT_FALSE(watch.isCalm(51));
}

TEST_F(ReclaimWatchTest, IsNeverCalmWhereTheKernelDoesNotTell) {
    EXPECT_FALSE(watch.isCalm(50));
    tree.proc("vmstat", "nr_free_pages 1\n");
    EXPECT_FALSE(watch.isCalm(60));
    EXPECT_FALSE(watch.isCalm(600));
}

TEST_F(ReclaimWatchTest, WhatHappenedWhileTheKernelDidNotTellCounts) {
    EXPECT_FALSE(watch.isCalm(50));
    say(1);
    EXPECT_FALSE(watch.isCalm(60));
    EXPECT_TRUE(watch.isCalm(91));
}

}  // namespace
}  // namespace vantor::reclaim_watch_test
