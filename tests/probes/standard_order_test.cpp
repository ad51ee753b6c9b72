#include "probes/standard_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vantor::standard_order_test {
namespace {

struct Pair {
    const char* name;
    const char* first;
    const char* second;

    friend void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.name; }
};

class StandardOrder : public testing::TestWithParam<Pair> {};

TEST_P(StandardOrder, HasTheOneBeforeTheOther) {
    EXPECT_LT(compareStandard(GetParam().first, GetParam().second), 0);
    EXPECT_GT(compareStandard(GetParam().second, GetParam().first), 0);
    EXPECT_EQ(compareStandard(GetParam().first, GetParam().first), 0);
    EXPECT_EQ(compareStandard(GetParam().second, GetParam().second), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Names, StandardOrder,
    testing::Values(
        Pair{"NumbersByTheirValue", "disk2", "disk10"},
        Pair{"NumbersInTheMiddle", "en2a9", "en10a1"},
        Pair{"SecondNumberDecides", "br1.9", "br1.10"},
        Pair{"NumbersLongerThanAnyInteger", "a99999999999999999999", "a100000000000000000000"},
        Pair{"LettersWithoutCase", "alpha", "Beta"},
        Pair{"CapitalBeforeLaterSmall", "Alpha", "beta"},
        Pair{"SmallLettersFirstWhereNothingElseDiffers", "alpha", "Alpha"},
        Pair{"CaseYieldsToLaterNumbers", "Disk2", "disk10"}, Pair{"FewerZerosFirst", "en1", "en01"},
        Pair{"ZerosYieldToLaterLetters", "en01a", "en1b"}, Pair{"ShorterFirst", "eth", "eth0"},
        Pair{"EmptyFirst", "", "a"}, Pair{"DigitsBeforeLetters", "a1", "ab"},
        Pair{"AccentedLettersWithoutCase", "\u00e9a", "\u00c9b"},
        Pair{"CyrillicWithoutCase", "\u0430\u0430", "\u0410\u0431"},
        Pair{"BytesThatAreNoText", "a\xff",
             "a\xff"
             "b"}),
    [](const auto& row) { return row.param.name; });

TEST(StandardOrder, SortsAsPeopleExpect) {
    std::vector<std::string> names{"en10", "bridge100", "EN1", "en2", "utun3", "en1", "lo0"};
    std::sort(names.begin(), names.end(),
              [](const auto& a, const auto& b) { return compareStandard(a, b) < 0; });
    EXPECT_EQ(names,
              (std::vector<std::string>{"bridge100", "en1", "EN1", "en2", "en10", "lo0", "utun3"}));
}

// Sorting with an order that contradicts itself may run past the list's end.
TEST(StandardOrder, NeverContradictsItself) {
    const std::vector<std::string> names{"",   "0",   "00",  "1",    "01",   "a",        "A",
                                         "a0", "A00", "a1b", "a01B", "\xc3", "\xe2\x82", "z9"};
    for (const auto& a : names) {
        for (const auto& b : names) {
            EXPECT_EQ(compareStandard(a, b), -compareStandard(b, a)) << a << ' ' << b;
            EXPECT_EQ(compareStandard(a, b) == 0, a == b) << a << ' ' << b;
            for (const auto& c : names) {
                if (compareStandard(a, b) < 0 && compareStandard(b, c) < 0) {
                    EXPECT_LT(compareStandard(a, c), 0) << a << ' ' << b << ' ' << c;
                }
            }
        }
    }
}

}  // namespace
}  // namespace vantor::standard_order_test
