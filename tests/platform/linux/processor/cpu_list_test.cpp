#include "platform/linux/processor/cpu_list.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::cpu_list_test {
namespace {

using Numbers = std::vector<std::uint32_t>;

struct Row {
    const char* name;
    const char* text;
    std::optional<Numbers> numbers;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class CPUList : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, CPUList,
    testing::Values(Row{"One", "0\n", Numbers{0}}, Row{"Range", "0-3\n", Numbers{0, 1, 2, 3}},
                    Row{"RangeOfOne", "5-5", Numbers{5}},
                    Row{"Mixed", "0-2,8,10-11\n", Numbers{0, 1, 2, 8, 10, 11}},
                    Row{"Empty", "", Numbers{}}, Row{"LineEndAlone", "\n", Numbers{}},
                    Row{"LargestNumber", "65535", Numbers{65535}},
                    Row{"NumberPastTheLargest", "65536", std::nullopt},
                    Row{"RangePastTheLargest", "65534-65536", std::nullopt},
                    Row{"HugeRange", "0-4294967295", std::nullopt},
                    Row{"NumberPast32Bits", "4294967296", std::nullopt},
                    Row{"BackwardRange", "3-1", std::nullopt}, Row{"OpenRange", "3-", std::nullopt},
                    Row{"NoStart", "-3", std::nullopt}, Row{"TrailingComma", "0,1,", std::nullopt},
                    Row{"LeadingComma", ",1", std::nullopt}, Row{"TwoCommas", "0,,1", std::nullopt},
                    Row{"Word", "all", std::nullopt}, Row{"BlankBetween", "0 1", std::nullopt},
                    Row{"Repeated", "1,1", std::nullopt}, Row{"Descending", "2,1", std::nullopt},
                    Row{"Overlapping", "0-3,2-5", std::nullopt},
                    Row{"ThreePartRange", "0-3-5", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(CPUList, IsParsed) {
    EXPECT_EQ(parseCPUList(GetParam().text), GetParam().numbers);
}

}  // namespace
}  // namespace vantor::cpu_list_test
