#include "probes/utf8.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor {
namespace {

struct Row {
    const char* name;
    std::string bytes;
    bool valid;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class UTF8 : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, UTF8,
    testing::Values(
        Row{"Empty", "", true}, Row{"ASCII", "Processor 9", true},
        Row{"Zero", std::string(1, '\0'), true}, Row{"LastOfOneByte", "\x7F", true},
        Row{"FirstOfTwoBytes", "\xC2\x80", true}, Row{"LastOfTwoBytes", "\xDF\xBF", true},
        Row{"FirstOfThreeBytes", "\xE0\xA0\x80", true},
        Row{"BeforeTheSurrogates", "\xED\x9F\xBF", true},
        Row{"AfterTheSurrogates", "\xEE\x80\x80", true},
        Row{"LastOfThreeBytes", "\xEF\xBF\xBF", true},
        Row{"FirstOfFourBytes", "\xF0\x90\x80\x80", true},
        Row{"LastOfAll", "\xF4\x8F\xBF\xBF", true}, Row{"Ellipsis", "a\xE2\x80\xA6z", true},
        Row{"LoneContinuation", "a\x80", false}, Row{"OverlongOfTwo", "\xC1\xBF", false},
        Row{"OverlongOfThree", "\xE0\x9F\xBF", false},
        Row{"OverlongOfFour", "\xF0\x8F\xBF\xBF", false},
        Row{"FirstSurrogate", "\xED\xA0\x80", false}, Row{"LastSurrogate", "\xED\xBF\xBF", false},
        Row{"PastTheLast", "\xF4\x90\x80\x80", false},
        Row{"LeadPastTheLast", "\xF5\x80\x80\x80", false}, Row{"NeverALead", "\xFF", false},
        Row{"CutAfterLead", "ab\xC3", false}, Row{"CutBeforeTheThird", "\xE2\x80", false},
        Row{"CutBeforeTheFourth", "\xF0\x90\x80", false}, Row{"BadThird", "\xE2\x80\x41", false},
        Row{"BadFourth", "\xF0\x90\x80\xC0", false}, Row{"Latin1", "Caf\xE9 au lait", false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(UTF8, IsRecognised) {
    EXPECT_EQ(isUTF8(GetParam().bytes), GetParam().valid);
}

TEST_P(UTF8, IsLeftAsItIsByRepairing) {
    const std::string repaired = repairedUTF8(GetParam().bytes);
    EXPECT_TRUE(isUTF8(repaired));
    EXPECT_EQ(repaired == GetParam().bytes, GetParam().valid);
}

TEST(RepairedUTF8, ReplacesEachRunThatBeginsNoCharacter) {
    EXPECT_EQ(repairedUTF8("a\xFF\xC3\xA9\xE2\x82z"), "a\uFFFD\xC3\xA9\uFFFDz");
}

}  // namespace
}  // namespace vantor
