#include "sampling/histories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "support/named_row.h"

namespace vantor::histories_test {
namespace {

using testing::ElementsAre;

struct LimitRow : NamedRow {
    std::int64_t historyLength;
    std::size_t expected;
};

class HistoryLimit : public testing::TestWithParam<LimitRow> {};

TEST_P(HistoryLimit, IsTheLengthWithinTheBounds) {
    EXPECT_EQ(historyLimit(GetParam().historyLength), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Histories, HistoryLimit,
    testing::Values(LimitRow{{"TooShort"}, 10, 30}, LimitRow{{"Negative"}, -1, 30},
                    LimitRow{{"Smallest"}, std::numeric_limits<std::int64_t>::min(), 30},
                    LimitRow{{"LowerBound"}, 30, 30}, LimitRow{{"Within"}, 90, 90},
                    LimitRow{{"UpperBound"}, 300, 300}, LimitRow{{"TooLong"}, 1000, 300},
                    LimitRow{{"Largest"}, std::numeric_limits<std::int64_t>::max(), 300}),
    rowName<LimitRow>);

TEST(History, DropsTheOldestBeyondTheLimit) {
    std::vector<double> history{1, 2, 3};
    appendToHistory(4, history, 3);
    EXPECT_THAT(history, ElementsAre(2, 3, 4));
}

TEST(History, AppendShrinksOneThatIsFarTooLong) {
    std::vector<double> history{1, 2, 3, 4, 5};
    appendToHistory(6, history, 2);
    EXPECT_THAT(history, ElementsAre(5, 6));
}

TEST(History, FullOneKeepsItsStorageFromAppendToAppend) {
    std::vector<double> history;
    for (int i = 0; i < 31; ++i)
        appendToHistory(i, history, 30);
    const double* const storage = history.data();
    for (int i = 0; i < 100; ++i)
        appendToHistory(i, history, 30);
    EXPECT_EQ(history.data(), storage);
    EXPECT_EQ(history.size(), 30u);
}

struct HistoryRow : NamedRow {
    std::vector<double> Histories::*member;
};

class TrimmedHistory : public testing::TestWithParam<HistoryRow> {};

TEST_P(TrimmedHistory, LosesItsOldestAndIsReported) {
    Histories histories;
    histories.*GetParam().member = {1, 2, 3};
    EXPECT_TRUE(trimHistories(histories, 2));
    EXPECT_THAT(histories.*GetParam().member, ElementsAre(2, 3));
    EXPECT_FALSE(trimHistories(histories, 2));
}

INSTANTIATE_TEST_SUITE_P(Histories, TrimmedHistory,
                         testing::Values(HistoryRow{{"CPU"}, &Histories::cpu},
                                         HistoryRow{{"Memory"}, &Histories::memory},
                                         HistoryRow{{"Download"}, &Histories::download},
                                         HistoryRow{{"Upload"}, &Histories::upload},
                                         HistoryRow{{"GPU"}, &Histories::gpu}),
                         rowName<HistoryRow>);

}  // namespace
}  // namespace vantor::histories_test
