#include "platform/linux/files/monotonic_counter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace vantor::monotonic_counter_test {
namespace {

struct Row {
    const char* name;
    std::vector<std::uint64_t> raw, steady;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class MonotonicCounterTest : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MonotonicCounterTest,
    testing::Values(
        Row{"Growth", {5, 5, 9, 2000}, {5, 5, 9, 2000}},
        Row{"SmallStepBackHoldsUntilItIsCaughtUp",
            {500, 497, 499, 500, 503},
            {500, 500, 500, 500, 503}},
        Row{"SmallStepsBackDoNotAddUp", {500, 498, 496, 501}, {500, 500, 500, 501}},
        Row{"LargestCorrection", {1500, 500, 1501}, {1500, 1500, 1501}},
        Row{"SmallestRestart", {1500, 499, 500}, {1500, 1500, 1501}},
        Row{"RestartFromZero", {90000, 0, 10, 30}, {90000, 90000, 90010, 90030}},
        Row{"SecondRestart", {90000, 0, 5000, 10, 20}, {90000, 90000, 95000, 95000, 95010}},
        Row{"CorrectionAfterARestart", {90000, 100, 98, 103}, {90000, 90000, 90000, 90003}},
        Row{"RestartOfAYoungCounterIsHeld", {800, 0, 790, 805}, {800, 800, 800, 805}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(MonotonicCounterTest, NeverStepsBack) {
    MonotonicCounter counter;
    std::vector<std::uint64_t> steady;
    for (const std::uint64_t raw : GetParam().raw)
        steady.push_back(counter.update(raw));
    EXPECT_EQ(steady, GetParam().steady);
}

}  // namespace
}  // namespace vantor::monotonic_counter_test
