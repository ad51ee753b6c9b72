#include "platform/linux/storage/file_systems.h"

#include <gtest/gtest.h>
#include <sys/statvfs.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "support/named_row.h"

namespace vantor::file_systems_test {
namespace {

using Blocks = std::uint64_t;

struct statvfs answer(Blocks all, Blocks free, Blocks available) {
    struct statvfs said = {};
    said.f_bsize = 1048576;
    said.f_frsize = 4096;
    said.f_blocks = all;
    said.f_bfree = free;
    said.f_bavail = available;
    return said;
}

struct BlockRow : NamedRow {
    Blocks all;
    Blocks free;
    Blocks available;
    Blocks total;
};

class FileSystemBlocks : public testing::TestWithParam<BlockRow> {};

constexpr Blocks hugest = std::numeric_limits<Blocks>::max();

INSTANTIATE_TEST_SUITE_P(
    Rows, FileSystemBlocks,
    testing::Values(BlockRow{{"NoneReserved"}, 1000, 400, 400, 1000},
                    BlockRow{{"SomeReserved"}, 1000, 400, 350, 950},
                    BlockRow{{"MostReserved"}, 66053021, 61191040, 20222316, 25084297},
                    BlockRow{{"FullForPeople"}, 1000, 30, 0, 970},
                    BlockRow{{"Full"}, 1000, 0, 0, 1000}, BlockRow{{"Nothing"}, 0, 0, 0, 0},
                    BlockRow{{"MoreAvailableThanFree"}, 1000, 400, 401, 1000},
                    BlockRow{{"LessThanNothingAvailable"}, 1000, 400, hugest, 1000},
                    BlockRow{{"MoreFreeThanThereAre"}, 1000, 1001, 900, 1000},
                    BlockRow{{"LessThanNothingFree"}, 1000, hugest, 0, 1000},
                    BlockRow{{"AllReserved"}, 1000, 1000, 0, 1000}),
    rowName<BlockRow>);

TEST_P(FileSystemBlocks, AreCountedWithoutThoseKeptForThePrivileged) {
    const BlockRow& row = GetParam();
    const FileSystems::Space space = spaceIn(answer(row.all, row.free, row.available));
    EXPECT_EQ(space.blocks, row.total);
    EXPECT_EQ(space.availableBlocks, row.available);
    EXPECT_EQ(space.fragmentSize, 4096U);
}

// A disk of a terabyte, of which a twentieth is reserved, would be 50 GB fuller than it is.
TEST(FileSystemSpace, WhatIsReservedIsNotUsed) {
    const FileSystems::Space space = spaceIn(answer(244'000'000, 200'000'000, 187'800'000));
    EXPECT_EQ(space.blocks - space.availableBlocks, 44'000'000U);
}

TEST(FileSystemSpace, IsReadOnlyByItsFlag) {
    struct statvfs said = answer(1000, 400, 350);
    EXPECT_FALSE(spaceIn(said).isReadOnly);
    said.f_flag = ST_RDONLY | ST_NOSUID;
    EXPECT_TRUE(spaceIn(said).isReadOnly);
}

TEST(LiveFileSystems, UseWhatStatvfsCallsNotFree) {
    struct statvfs said = {};
    ASSERT_EQ(::statvfs("/proc", &said), 0);
    const auto space = makeLiveFileSystems()->space("/proc");
    ASSERT_TRUE(space);
    EXPECT_EQ(space->blocks - space->availableBlocks, said.f_blocks - said.f_bfree);
    EXPECT_EQ(makeLiveFileSystems()->space("/proc/no such folder"), std::nullopt);
}

}  // namespace
}  // namespace vantor::file_systems_test
