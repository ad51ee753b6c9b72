#include "model/utf8.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::utf8_test {
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

TEST(DistinctUTF8, ShowsTheBytesThatBelongToNoCharacter) {
    EXPECT_EQ(distinctUTF8("a\xFF\xC3\xA9\xE2\x82z"), "a\\xFF\xC3\xA9\\xE2\\x82z");
    EXPECT_NE(distinctUTF8("Caf\xE9"), distinctUTF8("Caf\xE8"));
}

TEST_P(UTF8, StaysAsItIsWhereItIsRightAndIsSoWhereNot) {
    const std::string text = distinctUTF8(GetParam().bytes);
    EXPECT_TRUE(isUTF8(text));
    EXPECT_EQ(text == GetParam().bytes, GetParam().valid);
}

TEST_P(UTF8, IsLeftAloneWhereItIsRightAndMendedWhereNot) {
    std::string mended = "of before";
    const std::string_view result = validUTF8(GetParam().bytes, mended);
    EXPECT_TRUE(isUTF8(result));
    if (GetParam().valid) {
        EXPECT_EQ(result.data(), GetParam().bytes.data()) << "nothing is copied";
        EXPECT_EQ(mended, "of before");
    } else {
        EXPECT_EQ(result.data(), mended.data());
        EXPECT_NE(result, GetParam().bytes);
    }
}

struct Mending {
    const char* name;
    std::string bytes;
    std::string mended;  ///< with ? for the replacement character

    friend void PrintTo(const Mending& row, std::ostream* out) { *out << row.name; }
};

class UTF8Replacement : public testing::TestWithParam<Mending> {};

// One replacement for each longest run that could have begun a character, or else for each byte.
INSTANTIATE_TEST_SUITE_P(
    Rows, UTF8Replacement,
    testing::Values(Mending{"LoneContinuation", "\x80", "?"},
                    Mending{"EachLoneContinuation", "\x80\xBF\x80", "???"},
                    Mending{"Latin1", "Caf\xE9 au lait", "Caf? au lait"},
                    Mending{"LeadAtTheEnd", "ab\xC3", "ab?"},
                    Mending{"LeadBeforeALetter", "\xC3z", "?z"},
                    Mending{"TwoLeads", "\xC3\xC3\xA9", "?\xC3\xA9"},
                    Mending{"OverlongOfTwo", "\xC0\xAF", "??"},
                    Mending{"OverlongOfThree", "\xE0\x80\xAF", "???"},
                    Mending{"OverlongOfFour", "\xF0\x80\x80\xAF", "????"},
                    Mending{"Surrogate", "\xED\xA0\x80", "???"},
                    Mending{"SurrogatePair", "\xED\xA0\x80\xED\xB0\x80", "??????"},
                    Mending{"PastTheLast", "\xF4\x91\x92\x93", "????"},
                    Mending{"LeadPastTheLast", "\xF5\x80\x80\x80", "????"},
                    Mending{"FiveBytesOfOld", "\xF8\x88\x80\x80\x80", "?????"},
                    Mending{"NeverALead", "\xFE\xFF", "??"}, Mending{"CutOfThree", "\xE2\x80", "?"},
                    Mending{"CutOfThreeBeforeALetter", "\xE2\x80z", "?z"},
                    Mending{"CutOfFourAfterTwo", "\xF0\x90z", "?z"},
                    Mending{"CutOfFourAfterThree", "\xF0\x90\x80z", "?z"},
                    Mending{"CutByAnotherLead", "\xF1\x80\x80\xE1\x80\xC2z", "???z"},
                    Mending{"CutsOneAfterAnother", "\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41",
                            "????\x41"},
                    Mending{"GoodAroundBad", "\xE2\x80\xA6\xFF\xC3\xA9", "\xE2\x80\xA6?\xC3\xA9"},
                    Mending{"ZeroAfterALead", std::string("\xC3\0z", 3), std::string("?\0z", 3)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(UTF8Replacement, StandsForEachLongestBeginning) {
    std::string expected;
    for (const char c : GetParam().mended) {
        if (c == '?') {
            expected += "\xEF\xBF\xBD";
        } else {
            expected += c;
        }
    }
    std::string mended;
    EXPECT_EQ(validUTF8(GetParam().bytes, mended), expected);
}

TEST(UTF8Replacement, LeavesNothingOfAnEarlierText) {
    std::string mended;
    validUTF8("a long text with \xFF in it", mended);
    EXPECT_EQ(validUTF8("\xFF", mended), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace vantor::utf8_test
