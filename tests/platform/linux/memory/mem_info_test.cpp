#include "platform/linux/memory/mem_info.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::mem_info_test {
namespace {

TEST(MemInfo, ReadsWhatTheSharesAreMadeOf) {
    const auto info = MemInfo::parse(
        "MemTotal:       24684084 kB\nMemFree:        23782336 kB\nMemAvailable:   23944380 kB\n"
        "Buffers:            6012 kB\nCached:           342096 kB\nSwapCached:          77 kB\n"
        "Active:           152448 kB\nInactive:         499452 kB\nActive(file):     150888 kB\n"
        "Inactive(file):   188232 kB\nMlocked:           15112 kB\nSwapTotal:       1048572 kB\n"
        "Zswap:              4096 kB\nZswapped:           9000 kB\nShmem:              8872 kB\n"
        "Slab:             117176 kB\nSReclaimable:      90104 kB\nSUnreclaim:        27072 kB\n"
        "KernelStack:        1600 kB\nPageTables:         3020 kB\nSecPageTables:       3 kB\n"
        "Percpu:              736 kB\nHugePages_Total:       0\nHugepagesize:       2048 kB\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->total, 24684084U);
    EXPECT_EQ(info->free, 23782336U);
    EXPECT_EQ(info->available, 23944380U);
    EXPECT_EQ(info->buffers, 6012U);
    EXPECT_EQ(info->cached, 342096U);
    EXPECT_EQ(info->activeFile, 150888U);
    EXPECT_EQ(info->inactiveFile, 188232U);
    EXPECT_EQ(info->mlocked, 15112U);
    EXPECT_EQ(info->swapTotal, 1048572U);
    EXPECT_EQ(info->zswap, 4096U);
    EXPECT_EQ(info->shmem, 8872U);
    EXPECT_EQ(info->sReclaimable, 90104U);
    EXPECT_EQ(info->sUnreclaim, 27072U);
    EXPECT_EQ(info->kernelStack, 1600U);
    EXPECT_EQ(info->pageTables, 3020U);
    EXPECT_EQ(info->percpu, 736U);
}

TEST(MemInfo, DoesNotDependOnTheOrderOfTheLines) {
    const auto info = MemInfo::parse(
        "Percpu: 1 kB\nMlocked: 2 kB\nMemFree: 3 kB\nMemTotal: 4 kB\nBuffers: 5 kB\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->percpu, 1U);
    EXPECT_EQ(info->mlocked, 2U);
    EXPECT_EQ(info->free, 3U);
    EXPECT_EQ(info->total, 4U);
    EXPECT_EQ(info->buffers, 5U);
}

struct Row {
    const char* name;
    const char* line;
    MemInfo::Amount free;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class MemInfoLine : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MemInfoLine,
    testing::Values(Row{"Plain", "MemFree: 12 kB\n", 12}, Row{"Zero", "MemFree: 0 kB\n", 0},
                    Row{"NoBlank", "MemFree:12 kB\n", 12}, Row{"Missing", "", std::nullopt},
                    Row{"NoNumber", "MemFree: kB\n", std::nullopt},
                    Row{"Nothing", "MemFree:\n", std::nullopt},
                    Row{"NoUnit", "MemFree: 12\n", std::nullopt},
                    Row{"OddUnit", "MemFree: 12 MB\n", std::nullopt},
                    Row{"MoreAfterTheUnit", "MemFree: 12 kB 3\n", std::nullopt},
                    Row{"Negative", "MemFree: -12 kB\n", std::nullopt},
                    Row{"Fraction", "MemFree: 1.5 kB\n", std::nullopt},
                    Row{"Hexadecimal", "MemFree: 0x12 kB\n", std::nullopt},
                    Row{"LargestWithBytesOf64Bits", "MemFree: 18014398509481983 kB\n",
                        18014398509481983U},
                    Row{"BytesPast64Bits", "MemFree: 18014398509481984 kB\n", std::nullopt},
                    Row{"Past64Bits", "MemFree: 18446744073709551616 kB\n", std::nullopt},
                    Row{"OtherName", "MemFreed: 12 kB\n", std::nullopt},
                    Row{"OtherCase", "memfree: 12 kB\n", std::nullopt},
                    Row{"NoColon", "MemFree 12 kB\n", std::nullopt},
                    Row{"EmptyLines", "\n\nMemFree: 12 kB\n\n", 12}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(MemInfoLine, IsReadWholeOrIsAbsent) {
    const std::string text = std::string("MemTotal: 100 kB\n") + GetParam().line;
    const auto info = MemInfo::parse(text);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->free, GetParam().free);
    EXPECT_EQ(info->total, 100U);
}

TEST(MemInfo, IsAbsentWithoutATotal) {
    for (const char* text :
         {"", "\n", "MemFree: 12 kB\n", "MemTotal: kB\n", "MemTotal: 12\n", "MemTotal: 0 kB\n",
          "MemTotal: 18014398509481984 kB\n", "MemTotal\n", "no such file\n"}) {
        EXPECT_FALSE(MemInfo::parse(text)) << text;
    }
}

TEST(MemInfo, IsAbsentWhenCutInsideALine) {
    const std::string text = "MemTotal: 1000 kB\nMemFree: 100 kB\n";
    for (std::size_t size = 0; size < text.size(); ++size) {
        const bool isCut = size == 0 || text[size - 1] != '\n';
        EXPECT_EQ(MemInfo::parse(text.substr(0, size)).has_value(), !isCut) << size;
    }
}

}  // namespace
}  // namespace vantor::mem_info_test
