#include "platform/linux/processor/linux_load_averages.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "support/fake_kernel_tree.h"

namespace vantor::linux_load_averages_test {
namespace {

struct Row {
    const char* name;
    const char* content;
    int answer;
    std::vector<double> averages;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class LinuxLoadAveragesTest : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, LinuxLoadAveragesTest,
    testing::Values(Row{"Whole", "0.52 1.25 12.00 2/412 11206\n", 3, {0.52, 1.25, 12}},
                    Row{"CutAfterTwo", "0.52 1.25 ", 2, {0.52, 1.25}},
                    Row{"CutInTheThird", "0.52 1.25 12.", 2, {0.52, 1.25}},
                    Row{"CutInTheFirst", "0.5", -1, {}}, Row{"Empty", "", -1, {}},
                    Row{"Word", "low 1.25 12.00\n", -1, {}},
                    Row{"LetterInTheFirst", "0.52x 1.25 12.00 2/412\n", -1, {}},
                    Row{"WordInTheMiddle", "0.52 low 12.00 2/412\n", 1, {0.52}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(LinuxLoadAveragesTest, AreTheFirstNumbersOfTheFile) {
    const FakeKernelTree tree;
    tree.proc("loadavg", GetParam().content);
    LinuxLoadAverages averages(tree.roots());
    std::array<double, 3> values{-7, -7, -7};
    ASSERT_EQ(averages.getloadavg(values), GetParam().answer);
    for (std::size_t i = 0; i < GetParam().averages.size(); ++i) {
        EXPECT_EQ(values[i], GetParam().averages[i]);
    }
}

TEST(LinuxLoadAverages, FillNoMoreThanWasAskedFor) {
    const FakeKernelTree tree;
    tree.proc("loadavg", "0.50 1.25 12.00 2/412 11206\n");
    LinuxLoadAverages averages(tree.roots());
    std::array<double, 4> values{-7, -7, -7, -7};
    EXPECT_EQ(averages.getloadavg(std::span(values).first(2)), 2);
    EXPECT_EQ(values, (std::array{0.5, 1.25, -7.0, -7.0}));
    EXPECT_EQ(averages.getloadavg(values), 3);
    EXPECT_EQ(values, (std::array{0.5, 1.25, 12.0, -7.0}));
}

TEST(LinuxLoadAverages, FailWithoutTheirFile) {
    const FakeKernelTree tree;
    LinuxLoadAverages averages(tree.roots());
    std::array<double, 3> values{};
    EXPECT_LT(averages.getloadavg(values), 1);
}

}  // namespace
}  // namespace vantor::linux_load_averages_test
