#include "platform/linux/processes/process_stat.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::process_stat_test {
namespace {

/// A line as the kernel writes it, with the name and the fields that matter to choose.
std::string line(const std::string& name, const std::string& flags = "4194304",
                 const std::string& user = "21", const std::string& system = "34",
                 const std::string& start = "1412116", const std::string& resident = "410") {
    return "32438 (" + name + ") R 32420 32420 28178 0 -1 " + flags + " 101 0 0 0 " + user + " " +
           system + " 55 89 20 0 1 0 " + start + " 3133440 " + resident +
           " 18446744073709551615 94683037491200 94683037511081 140732032553840 0 0 0 0 0 0 0 0 0"
           " 17 1 0 0 0 0 0 94683037527088 94683037528704 94683074355200 140732032559706"
           " 140732032559726 140732032559726 140732032561131 0\n";
}

TEST(ProcessStat, TakesTheFieldsThatAMonitorNeeds) {
    const std::string text = line("cat");
    const auto stat = ProcessStat::parse(text);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, "cat");
    EXPECT_EQ(stat->userTicks, 21U);
    EXPECT_EQ(stat->systemTicks, 34U) << "not those of the children that it has waited for";
    EXPECT_EQ(stat->startTicks, 1412116U);
    EXPECT_EQ(stat->residentPages, 410U);
    EXPECT_FALSE(stat->isKernelThread);
}

struct NameRow {
    const char* title;
    std::string name;

    friend void PrintTo(const NameRow& row, std::ostream* out) { *out << row.title; }
};

class ProcessStatName : public testing::TestWithParam<NameRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ProcessStatName,
    testing::Values(NameRow{"Plain", "bash"}, NameRow{"Empty", ""}, NameRow{"Blank", " "},
                    NameRow{"Blanks", "Web Content  2"}, NameRow{"Newline", "a\nb"},
                    NameRow{"NewlineAtTheEnd", "a\n"}, NameRow{"OnlyNewlines", "\n\n"},
                    NameRow{"Parentheses", "(sd-pam)"}, NameRow{"Closing", ")"},
                    NameRow{"Opening", "("}, NameRow{"Backwards", ")("},
                    NameRow{"LikeTheFieldsAfterIt", ") R 1 ("},
                    NameRow{"LikeAWholeLine", "a) S 1 1 1 0 -1 0\n2 (b"},
                    NameRow{"InvalidUTF8", "\xFF\xC3"}, NameRow{"Tab", "a\tb"},
                    NameRow{"SixtyFourBytes", "kworker/u257:12-events_freezable_pwr_efficient_" +
                                                  std::string(17, 'w')}),
    [](const auto& row) { return std::string(row.param.title); });

TEST_P(ProcessStatName, EndsAtTheLastParenthesis) {
    const std::string text = line(GetParam().name);
    const auto stat = ProcessStat::parse(text);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, GetParam().name);
    EXPECT_EQ(stat->userTicks, 21U);
    EXPECT_EQ(stat->residentPages, 410U);
}

struct BadRow {
    const char* title;
    std::string text;

    friend void PrintTo(const BadRow& row, std::ostream* out) { *out << row.title; }
};

class MalformedProcessStat : public testing::TestWithParam<BadRow> {};

const std::string tooLarge = "18446744073709551616";

INSTANTIATE_TEST_SUITE_P(
    Rows, MalformedProcessStat,
    testing::Values(
        BadRow{"Empty", ""}, BadRow{"Newline", "\n"}, BadRow{"NoName", "1 S 1 1 1\n"},
        BadRow{"OnlyOpened", "1 (cat S 1 1 1\n"}, BadRow{"OnlyClosed", "1 cat) S 1 1 1\n"},
        BadRow{"ClosedBeforeOpened", "1 )cat( S 1 1 1\n"}, BadRow{"NothingAfterTheName", "1 (a)"},
        BadRow{"ALineEndAfterTheName", "1 (a)\n"},
        BadRow{"CutAfterUser", "1 (a) S 1 1 1 0 -1 0 9 8 7 6 21\n"},
        BadRow{"OneFieldTooFew", "1 (a) S 1 1 1 0 -1 0 9 8 7 6 2 3 5 4 20 0 1 0 100 999\n"},
        BadRow{"WithoutALineEnd", "1 (a) S 1 1 1 0 -1 0 9 8 7 6 2 3 5 4 20 0 1 0 100 999 10"},
        BadRow{"NegativeFlags", line("a", "-1")}, BadRow{"NegativeUser", line("a", "0", "-1")},
        BadRow{"NegativeSystem", line("a", "0", "1", "-1")},
        BadRow{"NegativeStart", line("a", "0", "1", "1", "-1")},
        BadRow{"LettersForUser", line("a", "0", "x")},
        BadRow{"ANumberAndALetter", line("a", "0", "1x")},
        BadRow{"AFraction", line("a", "0", "1", "1.5")}, BadRow{"APlus", line("a", "0", "+1")},
        BadRow{"AHexNumber", line("a", "0x10")}, BadRow{"UserTooLarge", line("a", "0", tooLarge)},
        BadRow{"SystemTooLarge", line("a", "0", "1", tooLarge)},
        BadRow{"StartTooLarge", line("a", "0", "1", "1", tooLarge)},
        BadRow{"ResidentTooLarge", line("a", "0", "1", "1", "1", tooLarge)},
        BadRow{"LettersForResident", line("a", "0", "1", "1", "1", "many")},
        BadRow{"OnlyASignForResident", line("a", "0", "1", "1", "1", "-")},
        BadRow{"TwoSignsForResident", line("a", "0", "1", "1", "1", "--1")}),
    [](const auto& row) { return std::string(row.param.title); });

TEST_P(MalformedProcessStat, IsAbsent) {
    EXPECT_FALSE(ProcessStat::parse(GetParam().text));
}

TEST(ProcessStat, IsAbsentWhereverTheLineIsCut) {
    const std::string text = line("a) 1 (b");
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_FALSE(ProcessStat::parse(text.substr(0, length))) << length;
    EXPECT_TRUE(ProcessStat::parse(text));
}

TEST(ProcessStat, TakesTheLargestNumbers) {
    const std::string most = "18446744073709551615";
    const auto stat = ProcessStat::parse(line("a", "0", most, most, most, most));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->userTicks, 18446744073709551615U);
    EXPECT_EQ(stat->systemTicks, 18446744073709551615U);
    EXPECT_EQ(stat->startTicks, 18446744073709551615U);
    EXPECT_EQ(stat->residentPages, 18446744073709551615U);
}

TEST(ProcessStat, LessThanNoMemoryIsNone) {
    const auto stat = ProcessStat::parse(line("a", "0", "1", "1", "1", "-3"));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->residentPages, 0U);
}

TEST(ProcessStat, KnowsAKernelThreadByItsFlag) {
    EXPECT_TRUE(ProcessStat::parse(line("kthreadd", "2129984"))->isKernelThread);
    EXPECT_TRUE(ProcessStat::parse(line("kworker", "69238880"))->isKernelThread);
    EXPECT_FALSE(ProcessStat::parse(line("systemd", "4194560"))->isKernelThread);
    EXPECT_FALSE(ProcessStat::parse(line("systemd", "0"))->isKernelThread);
}

TEST(ProcessStat, TakesTheShorterLinesOfOldKernels) {
    const auto stat = ProcessStat::parse(
        "1 (init) S 0 0 0 0 -1 256 181 20160 15 79 1 55 45 71 16 0 1 0 128 1654784 143 "
        "4294967295 134512640 134542920 3218797168 3218795944 4294960130 0 0 1475401980 671819267 "
        "3222429741 0 0 0 0\n");
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, "init");
    EXPECT_EQ(stat->userTicks, 1U);
    EXPECT_EQ(stat->systemTicks, 55U);
    EXPECT_EQ(stat->startTicks, 128U);
    EXPECT_EQ(stat->residentPages, 143U);
}

TEST(ResidentPages, AreTheSecondNumber) {
    EXPECT_EQ(parseResidentPages("765 427 399 5 0 123 0\n"), 427U);
    EXPECT_EQ(parseResidentPages("0 0 0 0 0 0 0\n"), 0U);
    EXPECT_EQ(parseResidentPages("1 18446744073709551615 1\n"), 18446744073709551615U);
    EXPECT_EQ(parseResidentPages("1 2\n"), 2U);
}

TEST(ResidentPages, AreAbsentInAMalformedText) {
    for (const char* text :
         {"", "\n", " \n", "765\n", "765 \n", "765 427", "765 427 399 5 0 12", "765 x 399\n",
          "765 -1 399\n", "765 +1 399\n", "765 4x 399\n", "765 18446744073709551616 399\n"}) {
        EXPECT_FALSE(parseResidentPages(text)) << text;
    }
}

}  // namespace
}  // namespace vantor::process_stat_test
