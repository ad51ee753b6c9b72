#include "platform/linux/memory/zram_devices.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::zram_devices_test {
namespace {

struct Row {
    const char* name;
    const char* text;
    std::optional<std::uint64_t> used;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class ZramText : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ZramText,
    testing::Values(Row{"Whole", "  4096 74 12288 0 12288 0 0 0 0\n", 12288},
                    Row{"Zero", "       0        0        0        0\n", 0},
                    Row{"ThreeAreEnough", "1 2 3\n", 3}, Row{"Empty", "", std::nullopt},
                    Row{"LineEndAlone", "\n", std::nullopt}, Row{"Two", "1 2\n", std::nullopt},
                    Row{"CutInTheThird", "1 2 3", std::nullopt},
                    Row{"Word", "1 2 x\n", std::nullopt},
                    Row{"Negative", "1 2 -3 4\n", std::nullopt},
                    Row{"TooLarge", "1 2 18446744073709551616 4\n", std::nullopt},
                    Row{"FirstTooLarge", "18446744073709551616 2 3 4\n", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(ZramText, IsParsed) {
    EXPECT_EQ(parseZramUsedBytes(GetParam().text), GetParam().used);
}

class ZramDevicesTest : public testing::Test {
  protected:
    FakeKernelTree tree;
    ZramDevices devices{tree.roots()};
};

TEST_F(ZramDevicesTest, TakeNothingWhereThereAreNone) {
    EXPECT_EQ(devices.usedBytes(0), 0U);
    EXPECT_EQ(devices.usedBytes(std::nullopt), 0U);
}

TEST_F(ZramDevicesTest, AreAddedUp) {
    tree.sys("block/zram0/mm_stat", "1 1 4096 0\n");
    tree.sys("block/zram3/mm_stat", "1 1 8192 0\n");
    tree.sys("block/sda/mm_stat", "1 1 7 0\n");
    EXPECT_EQ(devices.usedBytes(0), 12288U);
    tree.sys("block/zram3/mm_stat", "1 1 16384 0\n");
    EXPECT_EQ(devices.usedBytes(0), 20480U) << "the statistics are read each time";
}

TEST_F(ZramDevicesTest, AreSoughtAgainWhenTheAmountOfSwapChanges) {
    EXPECT_EQ(devices.usedBytes(5), 0U);
    tree.sys("block/zram0/mm_stat", "1 1 4096 0\n");
    EXPECT_EQ(devices.usedBytes(5), 0U);
    EXPECT_EQ(devices.usedBytes(6), 4096U);
    tree.sys("block/zram1/mm_stat", "1 1 4096 0\n");
    EXPECT_EQ(devices.usedBytes(std::nullopt), 8192U);
}

TEST_F(ZramDevicesTest, ThatCannotBeReadHideNoOthers) {
    tree.sys("block/zram0/mm_stat", "");
    tree.sys("block/zram1/mm_stat", "1 1 4096 0\n");
    tree.sys("block/zram2/mm_stat", "damaged\n");
    tree.sys("block/zram3/mm_stat", std::string(4096, '1'));
    tree.sys("block/zram4/mm_stat/inside", "a folder in the file's place");
    tree.sys("block/zram5/other", "");
    EXPECT_EQ(devices.usedBytes(0), 4096U);
}

TEST_F(ZramDevicesTest, AreAddedUpWithoutAWrap) {
    tree.sys("block/zram0/mm_stat", "1 1 18446744073709551615 0\n");
    tree.sys("block/zram1/mm_stat", "1 1 4096 0\n");
    EXPECT_EQ(devices.usedBytes(0), std::numeric_limits<std::uint64_t>::max());
}

}  // namespace
}  // namespace vantor::zram_devices_test
