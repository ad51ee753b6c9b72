#include "platform/linux/processor/proc_stat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::proc_stat_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Ticks = ProcStat::Ticks;
using Processor = ProcStat::Processor;

ProcStat parse(std::string_view text) {
    ProcStat stat;
    stat.parse(text);
    return stat;
}

TEST(ProcStat, FoldsTheKernelsTimesIntoFourStates) {
    const ProcStat stat = parse(
        "cpu  100 20 30 4000 500 6 7 8 90 10\n"
        "cpu0 1 2 3 4 5 6 7 8 9 10\n"
        "intr 12 0 0\n");
    EXPECT_EQ(stat.total, (Ticks{.user = 100, .system = 51, .idle = 4500, .nice = 20}));
    EXPECT_THAT(stat.processors,
                ElementsAre(Processor{0, {.user = 1, .system = 24, .idle = 9, .nice = 2}}));
    EXPECT_TRUE(stat.processorsAreWhole);
}

TEST(ProcStat, KeepsTheKernelsNumbersOfTheProcessors) {
    const ProcStat stat = parse(
        "cpu  3 0 0 0\n"
        "cpu0 1 0 0 0\n"
        "cpu2 2 0 0 0\n"
        "cpu11 3 0 0 0\n"
        "intr 1\n");
    EXPECT_THAT(stat.processors, ElementsAre(Processor{0, {1, 0, 0, 0}}, Processor{2, {2, 0, 0, 0}},
                                             Processor{11, {3, 0, 0, 0}}));
}

TEST(ProcStat, StopsAtTheFirstLineOfAnotherKind) {
    const ProcStat stat = parse(
        "cpu  3 0 0 0\n"
        "cpu0 1 0 0 0\n"
        "intr 1\n"
        "cpu1 1 0 0 0\n");
    EXPECT_EQ(stat.processors.size(), 1U);
    EXPECT_TRUE(stat.processorsAreWhole);
}

TEST(ProcStat, ForgetsWhatItReadBefore) {
    ProcStat stat = parse("cpu  3 0 0 0\ncpu0 1 0 0 0\n");
    stat.parse("");
    EXPECT_EQ(stat.total, std::nullopt);
    EXPECT_THAT(stat.processors, IsEmpty());
    EXPECT_FALSE(stat.processorsAreWhole);
}

struct TotalRow {
    const char* name;
    const char* line;
    std::optional<Ticks> ticks;

    friend void PrintTo(const TotalRow& row, std::ostream* out) { *out << row.name; }
};

class TotalLine : public testing::TestWithParam<TotalRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, TotalLine,
    testing::Values(
        TotalRow{"FourFieldsOfOldKernels", "cpu  1 2 3 4\n", Ticks{1, 3, 4, 2}},
        TotalRow{"SevenFields", "cpu  1 2 3 4 5 6 7\n", Ticks{1, 16, 9, 2}},
        TotalRow{"FieldsOfLaterKernels", "cpu  1 2 3 4 5 6 7 8 9 10 11 12\n", Ticks{1, 24, 9, 2}},
        TotalRow{"WordAfterTheKnownFields", "cpu  1 2 3 4 5 6 7 8 later\n", Ticks{1, 24, 9, 2}},
        TotalRow{"TrailingBlank", "cpu  1 2 3 4 \n", Ticks{1, 3, 4, 2}},
        TotalRow{"SixtyFourBits", "cpu  18446744073709551615 0 0 0\n", Ticks{UINT64_MAX, 0, 0, 0}},
        TotalRow{"PastSixtyFourBits", "cpu  18446744073709551616 0 0 0\n", std::nullopt},
        TotalRow{"ThreeFields", "cpu  1 2 3\n", std::nullopt},
        TotalRow{"NoFields", "cpu \n", std::nullopt},
        TotalRow{"Negative", "cpu  1 -2 3 4\n", std::nullopt},
        TotalRow{"Word", "cpu  1 two 3 4\n", std::nullopt},
        TotalRow{"WordInNumber", "cpu  1 2x 3 4\n", std::nullopt},
        TotalRow{"CutBeforeItsEnd", "cpu  1 2 3 4 5", std::nullopt},
        TotalRow{"OtherFile", "MemTotal: 4 kB\n", std::nullopt},
        TotalRow{"Empty", "", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(TotalLine, IsReadWholeOrNotAtAll) {
    EXPECT_EQ(parse(GetParam().line).total, GetParam().ticks);
}

struct DamageRow {
    const char* name;
    const char* lines;

    friend void PrintTo(const DamageRow& row, std::ostream* out) { *out << row.name; }
};

class DamagedProcessorLines : public testing::TestWithParam<DamageRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedProcessorLines,
    testing::Values(DamageRow{"None", ""}, DamageRow{"CutInTheLastNumber", "cpu0 1 2 3 4"},
                    DamageRow{"CutInTheSecondLine", "cpu0 1 2 3 4\ncpu1 5 6"},
                    DamageRow{"CutInTheSecondNumber", "cpu0 1 2 3 4\ncpu1"},
                    DamageRow{"CutInTheSecondName", "cpu0 1 2 3 4\ncpu"},
                    DamageRow{"CutAfterTwoLetters", "cpu0 1 2 3 4\ncp"},
                    DamageRow{"CutAfterOneLetter", "cpu0 1 2 3 4\nc"},
                    DamageRow{"TooFewFields", "cpu0 1 2 3\ncpu1 1 2 3 4\n"},
                    DamageRow{"NoNumberInTheName", "cpux 1 2 3 4\n"},
                    DamageRow{"NumberPast32Bits", "cpu4294967296 1 2 3 4\n"},
                    DamageRow{"WordInTheMiddle", "cpu0 1 2 3 4\ncpu1 1 b 3 4\ncpu2 1 2 3 4\n"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(DamagedProcessorLines, AreNotTakenForTheWholeList) {
    const ProcStat stat = parse(std::string("cpu  9 9 9 9\n") + GetParam().lines);
    EXPECT_FALSE(stat.processorsAreWhole);
    EXPECT_EQ(stat.total, (Ticks{9, 9, 9, 9})) << "the totals stay good";
}

}  // namespace
}  // namespace vantor::proc_stat_test
