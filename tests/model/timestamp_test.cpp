#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "model/timestamp_text.h"

namespace vantor::timestamp_test {
namespace {

using namespace std::chrono;

struct Row {
    const char* name;
    const char* text;
    std::int64_t secondsSince1970;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class TimestampForm : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(Rows, TimestampForm,
                         testing::Values(Row{"Epoch", "1970-01-01T00:00:00Z", 0},
                                         Row{"BeforeTheEpoch", "1969-12-31T23:59:59Z", -1},
                                         Row{"EndOfDay", "2026-11-14T23:59:59Z", 1794700799},
                                         Row{"LeapDay", "2024-02-29T12:00:00Z", 1709208000},
                                         Row{"LeapDayOf2000", "2000-02-29T00:00:00Z", 951782400},
                                         Row{"DayAfterLeapDay", "2024-03-01T00:00:00Z", 1709251200},
                                         Row{"Past2038", "2038-01-19T03:14:08Z", 2147483648},
                                         Row{"EarlyCentury", "1700-03-01T00:00:00Z", -8515238400}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(TimestampForm, IsWrittenInUTCWithWholeSeconds) {
    EXPECT_EQ(encodeTimestamp(Timestamp{seconds{GetParam().secondsSince1970}}), GetParam().text);
}

TEST_P(TimestampForm, IsReadBack) {
    EXPECT_EQ(decodeTimestamp(GetParam().text), Timestamp{seconds{GetParam().secondsSince1970}});
}

TEST(TimestampForm, DropsTheFractionTowardsThePast) {
    EXPECT_EQ(encodeTimestamp(Timestamp{milliseconds{1999}}), "1970-01-01T00:00:01Z");
    EXPECT_EQ(encodeTimestamp(Timestamp{milliseconds{-1}}), "1969-12-31T23:59:59Z");
}

TEST(TimestampForm, KeepsTheMostDistantPast) {
    EXPECT_EQ(decodeTimestamp(encodeTimestamp(Timestamp::min())), Timestamp::min());
}

TEST(TimestampForm, HoldsDatesThatTheClockCannotReachAtItsEnds) {
    EXPECT_EQ(decodeTimestamp("0001-01-01T00:00:00Z"), Timestamp::min());
    EXPECT_EQ(decodeTimestamp("9999-12-31T23:59:59Z"), Timestamp::max());
}

struct BadRow {
    const char* name;
    const char* text;

    friend void PrintTo(const BadRow& row, std::ostream* out) { *out << row.name; }
};

class MalformedTimestamp : public testing::TestWithParam<BadRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MalformedTimestamp,
    testing::Values(
        BadRow{"Empty", ""}, BadRow{"DateAlone", "2026-11-14"},
        BadRow{"NoZone", "2026-11-14T17:53:42"}, BadRow{"OtherZone", "2026-11-14T17:53:42+"},
        BadRow{"ZoneOffset", "2026-11-14T17:53:42+01:00"},
        BadRow{"SmallLetters", "2026-11-14t17:53:42z"}, BadRow{"BlankForT", "2026-11-14 17:53:42Z"},
        BadRow{"Fraction", "2026-11-14T17:53:42.5Z"}, BadRow{"ShortYear", "926-11-14T17:53:42Z"},
        BadRow{"LongYear", "12026-11-14T17:53:42Z"}, BadRow{"NegativeYear", "-026-11-14T17:53:42Z"},
        BadRow{"SignedDay", "2026-11-+4T17:53:42Z"}, BadRow{"NegativeHour", "2026-11-14T-1:53:42Z"},
        BadRow{"BlankInNumber", "2026-11- 4T17:53:42Z"},
        BadRow{"LetterInNumber", "2026-1a-14T17:53:42Z"},
        BadRow{"MonthZero", "2026-00-14T17:53:42Z"},
        BadRow{"MonthThirteen", "2026-13-14T17:53:42Z"}, BadRow{"DayZero", "2026-11-00T17:53:42Z"},
        BadRow{"DayThirtyOneOfApril", "2026-04-31T17:53:42Z"},
        BadRow{"NoLeapDay", "2026-02-29T17:53:42Z"},
        BadRow{"NoLeapDayIn1900", "1900-02-29T17:53:42Z"},
        BadRow{"HourTwentyFour", "2026-11-14T24:00:00Z"},
        BadRow{"MinuteSixty", "2026-11-14T17:60:42Z"},
        BadRow{"SecondSixty", "2026-11-14T17:53:60Z"}, BadRow{"Trailing", "2026-11-14T17:53:42Z "}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(MalformedTimestamp, IsRefused) {
    EXPECT_EQ(decodeTimestamp(GetParam().text), std::nullopt);
}

}  // namespace
}  // namespace vantor::timestamp_test
