#include "platform/linux/memory/memory_breakdown.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantor::memory_breakdown_test {
namespace {

constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();

MemInfo machine() {
    MemInfo info;
    info.total = 100'000;
    info.free = 30'000;
    info.available = 60'000;
    info.sUnreclaim = 1'000;
    info.kernelStack = 200;
    info.pageTables = 30;
    info.percpu = 4;
    info.mlocked = 5'000;
    return info;
}

std::uint64_t used(const MemoryBreakdown& shares) {
    return shares.active + shares.wired + shares.compressor;
}

TEST(MemoryBreakdown, UsedIsAllThatIsNotAvailable) {
    const auto shares = MemoryBreakdown::of(machine(), {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 40'000U);
    EXPECT_EQ(shares->wired, 6'234U);
    EXPECT_EQ(shares->compressor, 0U);
    EXPECT_EQ(shares->active, 33'766U);
    EXPECT_EQ(shares->inactive + shares->purgeable, 30'000U);
    EXPECT_EQ(shares->total, 100'000U);
}

TEST(MemoryBreakdown, ZramAndZswapAreTheCompressor) {
    MemInfo info = machine();
    info.zswap = 700;
    const auto shares = MemoryBreakdown::of(info, {.zramBytes = 3'000 * 1024});
    ASSERT_TRUE(shares);
    EXPECT_EQ(shares->compressor, 3'700U);
    EXPECT_EQ(used(*shares), 40'000U);
}

TEST(MemoryBreakdown, PartsLargerThanWhatIsUsedAreCutTheCompressorLast) {
    MemInfo info = machine();
    info.mlocked = 90'000;
    info.zswap = 15'000;
    auto shares = MemoryBreakdown::of(info, {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(shares->compressor, 15'000U);
    EXPECT_EQ(shares->wired, 25'000U);
    EXPECT_EQ(shares->active, 0U);
    shares = MemoryBreakdown::of(info, {.zramBytes = largest});
    ASSERT_TRUE(shares);
    EXPECT_EQ(shares->compressor, 40'000U);
    EXPECT_EQ(shares->wired, 0U);
    EXPECT_EQ(shares->active, 0U);
}

TEST(MemoryBreakdown, MissingPartsAreOfNoSize) {
    MemInfo info;
    info.total = 100;
    info.free = 10;
    info.available = 30;
    const auto shares = MemoryBreakdown::of(info, {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(shares->active, 70U);
    EXPECT_EQ(shares->wired, 0U);
}

TEST(MemoryBreakdown, NothingAvailableIsAnAnswer) {
    MemInfo info = machine();
    info.available = 0;
    const auto shares = MemoryBreakdown::of(info, {.minimumFree = 10});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 100'000U);
    EXPECT_EQ(shares->inactive + shares->purgeable, 0U) << "less is available than is free";
}

TEST(MemoryBreakdown, ACacheOfZFSAboveItsMinimumIsAvailable) {
    const auto shares =
        MemoryBreakdown::of(machine(), {.arc = ArcStats{9'000 * 1024, 2'000 * 1024}});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 33'000U);
    EXPECT_EQ(shares->purgeable, 7'000U);
    EXPECT_EQ(shares->inactive, 30'000U);
}

TEST(MemoryBreakdown, ACacheOfZFSBelowItsMinimumChangesNothing) {
    for (const std::uint64_t size : {std::uint64_t{0}, std::uint64_t{5}, std::uint64_t{2048000}}) {
        EXPECT_EQ(MemoryBreakdown::of(machine(), {.arc = ArcStats{size, 2048000}}),
                  MemoryBreakdown::of(machine(), {}));
    }
}

TEST(MemoryBreakdown, ACacheOfZFSNeverMakesMoreAvailableThanThereIs) {
    const auto shares = MemoryBreakdown::of(machine(), {.arc = ArcStats{largest, 0}});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 0U);
    EXPECT_EQ(shares->inactive + shares->purgeable, 70'000U);
}

// 800 * 5 / 4 = 1,000 is the watermark of these.
TEST(MemoryBreakdown, OlderKernelsAreEstimated) {
    MemInfo info = machine();
    info.available.reset();
    info.activeFile = 10'000;
    info.inactiveFile = 6'000;
    info.sReclaimable = 1'500;
    const auto shares = MemoryBreakdown::of(info, {.minimumFree = 800});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 100'000U - (30'000 - 1'000 + 16'000 - 1'000 + 1'500 - 750));
}

TEST(MemoryBreakdown, StillOlderKernelsAreEstimatedFromTheWholeCache) {
    MemInfo info = machine();
    info.available.reset();
    info.activeFile = 10'000;  // without its counterpart it says nothing
    info.cached = 12'000;
    info.buffers = 5'000;
    info.shmem = 1'000;
    const auto shares = MemoryBreakdown::of(info, {.minimumFree = 800});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 100'000U - (30'000 - 1'000 + 16'000 - 1'000));
}

TEST(MemoryBreakdown, AnEstimateIsNeverBelowNothing) {
    MemInfo info = machine();
    info.available.reset();
    info.cached = 10;
    info.shmem = 20;
    for (const std::uint64_t minimum : {std::uint64_t{90'000}, largest}) {
        const auto shares = MemoryBreakdown::of(info, {.minimumFree = minimum});
        ASSERT_TRUE(shares);
        EXPECT_EQ(used(*shares), 100'000U) << minimum;
    }
}

TEST(MemoryBreakdown, AnEstimateWithoutAWatermarkCountsAllOfTheCache) {
    MemInfo info = machine();
    info.available.reset();
    info.cached = 16'000;
    const auto shares = MemoryBreakdown::of(info, {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 54'000U);
}

TEST(MemoryBreakdown, MoreAvailableThanThereIsMakesOnlyTheFreeAvailable) {
    MemInfo info = machine();
    info.available = 100'001;
    auto shares = MemoryBreakdown::of(info, {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 70'000U);
    info.free = 200'000;
    shares = MemoryBreakdown::of(info, {});
    ASSERT_TRUE(shares);
    EXPECT_EQ(used(*shares), 0U);
}

TEST(MemoryBreakdown, AreAbsentWhereItIsNotSaidHowMuchIsFree) {
    MemInfo info = machine();
    info.free.reset();
    EXPECT_FALSE(MemoryBreakdown::of(info, {}));
}

}  // namespace
}  // namespace vantor::memory_breakdown_test
