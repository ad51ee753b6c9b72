#include "platform/linux/memory/arc_stats.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::arc_stats_test {
namespace {

struct Row {
    const char* name;
    const char* text;
    std::optional<ArcStats> stats;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class ArcStatsText : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ArcStatsText,
    testing::Values(Row{"Whole",
                        "9 1 0x01 147 39984 6262148389 64712534023\n"
                        "name                            type data\n"
                        "hits                            4    103\n"
                        "c                               4    8345612288\n"
                        "c_min                           4    521600768\n"
                        "c_max                           4    8345612288\n"
                        "size                            4    4178451328\n"
                        "compressed_size                 4    9\n",
                        ArcStats{4178451328, 521600768}},
                    Row{"OtherOrder", "size 4 3\nc_min 4 2\n", ArcStats{3, 2}},
                    Row{"Zeroes", "c_min 4 0\nsize 4 0\n", ArcStats{0, 0}},
                    Row{"Largest", "c_min 4 1\nsize 4 18446744073709551615\n",
                        ArcStats{UINT64_MAX, 1}},
                    Row{"Empty", "", std::nullopt}, Row{"NoSize", "c_min 4 2\n", std::nullopt},
                    Row{"NoMinimum", "size 4 2\n", std::nullopt},
                    Row{"CutInTheNumber", "c_min 4 2\nsize 4 41", std::nullopt},
                    Row{"NoType", "c_min 4 2\nsize 41\n", std::nullopt},
                    Row{"NoData", "c_min 4 2\nsize 4 \n", std::nullopt},
                    Row{"Negative", "c_min 4 2\nsize 3 -5\n", std::nullopt},
                    Row{"Word", "c_min 4 2\nsize 4 large\n", std::nullopt},
                    Row{"MoreBehind", "c_min 4 2\nsize 4 5 6\n", std::nullopt},
                    Row{"TooLarge", "c_min 4 2\nsize 4 18446744073709551616\n", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(ArcStatsText, IsParsed) {
    EXPECT_EQ(ArcStats::parse(GetParam().text), GetParam().stats);
}

TEST(ArcStats, GiveBackWhatIsAboveTheMinimum) {
    EXPECT_EQ((ArcStats{10, 3}).reclaimable(), 7U);
    EXPECT_EQ((ArcStats{3, 3}).reclaimable(), 0U);
    EXPECT_EQ((ArcStats{2, 3}).reclaimable(), 0U);
}

}  // namespace
}  // namespace vantor::arc_stats_test
