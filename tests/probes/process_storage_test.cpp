#include "probes/process_storage.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantor::process_storage_test {
namespace {

constexpr std::int64_t maximum = 100000;

/// The least target is 512 entries, so that what is larger than 2,048 is oversized.
constexpr std::size_t limit = std::size_t{4} * 512;

class ProcessStorageTest : public testing::Test {
  protected:
    void makeOversized() { storage.pidBuffer.resize(limit + 1); }
    bool isKept() const { return storage.pidBuffer.size() == limit + 1; }

    ProcessStorage storage{maximum};
};

TEST_F(ProcessStorageTest, FourTimesTheNeedIsNotOversizedYet) {
    storage.pidBuffer.resize(limit);
    storage.trim(10, 100);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
    storage.pidBuffer.resize(limit + 1);
    storage.trim(10, 101);
    EXPECT_EQ(storage.scratchOversizeSinceUptime, 101.0);
}

TEST_F(ProcessStorageTest, EachStoreCounts) {
    const auto isOversizedWith = [](auto enlarge) {
        ProcessStorage fresh{maximum};
        enlarge(fresh);
        fresh.trim(10, 5);
        return fresh.scratchOversizeSinceUptime.has_value();
    };
    EXPECT_FALSE(isOversizedWith([](ProcessStorage&) {}));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.pidBuffer.resize(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.rawProcessBuffer.reserve(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.activePIDBuffer.reserve(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.staleMetadataPIDBuffer.reserve(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.previousCPUByPID.reserve(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.nextCPUByPID.reserve(limit + 1); }));
    EXPECT_TRUE(isOversizedWith([](auto& s) { s.metadataByPID.reserve(limit + 1); }));
}

TEST_F(ProcessStorageTest, TheIdentifiersBufferCountsByItsLengthNotItsCapacity) {
    storage.pidBuffer.reserve(limit * 4);
    storage.trim(10, 5);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
}

TEST_F(ProcessStorageTest, TheNeedIsTheLargerOfListedAndActiveAndSomeToSpare) {
    storage.pidBuffer.resize((1000 + 64) * 4 + 1);
    storage.trim(1000, 1);
    EXPECT_TRUE(storage.scratchOversizeSinceUptime);
    storage.trim(1001, 2);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
    storage.lastListedPIDCount = 1001;
    storage.trim(10, 3);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
}

TEST_F(ProcessStorageTest, TheNeedIsNeverMoreThanTheMaximum) {
    ProcessStorage small{100};
    small.pidBuffer.resize(401);
    small.trim(5000, 1);
    EXPECT_TRUE(small.scratchOversizeSinceUptime);
    small.trim(5000, 31);
    EXPECT_EQ(small.pidBuffer.size(), 100U);
}

TEST_F(ProcessStorageTest, ACountTooLargeToAddToNeedsTheMaximum) {
    storage.lastListedPIDCount = std::numeric_limits<std::int64_t>::max();
    storage.pidBuffer.resize(static_cast<std::size_t>(maximum) * 4);
    storage.trim(10, 1);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
    storage.pidBuffer.resize(static_cast<std::size_t>(maximum) * 4 + 1);
    storage.trim(10, 2);
    storage.trim(10, 32);
    EXPECT_EQ(storage.pidBuffer.size(), static_cast<std::size_t>(maximum));
}

TEST_F(ProcessStorageTest, AMaximumTooLargeToMultiplyIsNeverExceeded) {
    ProcessStorage vast{std::numeric_limits<std::int64_t>::max()};
    vast.lastListedPIDCount = std::numeric_limits<std::int64_t>::max();
    vast.pidBuffer.resize(5000);
    vast.trim(10, 1);
    EXPECT_FALSE(vast.scratchOversizeSinceUptime);
}

TEST_F(ProcessStorageTest, WithoutRoomForAnyTheBufferIsEmptied) {
    ProcessStorage none{0};
    none.pidBuffer.resize(1);
    none.trim(0, 1);
    none.trim(0, 31);
    EXPECT_TRUE(none.pidBuffer.empty());
}

TEST_F(ProcessStorageTest, OversizedStorageIsKeptFor29SecondsAndGivenBackAt30) {
    makeOversized();
    storage.trim(10, 100);
    storage.trim(10, 129);
    EXPECT_TRUE(isKept());
    storage.trim(10, 129.999);
    EXPECT_TRUE(isKept());
    storage.trim(10, 130);
    EXPECT_EQ(storage.pidBuffer.size(), 512U);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
}

TEST_F(ProcessStorageTest, DroppingBelowRestartsTheWait) {
    makeOversized();
    storage.trim(10, 100);
    storage.trim(1000, 129);  // as many as that justify the size
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
    storage.trim(10, 130);
    storage.trim(10, 159);
    EXPECT_TRUE(isKept());
    storage.trim(10, 160);
    EXPECT_FALSE(isKept());
}

TEST_F(ProcessStorageTest, AClockThatWentBackRestartsTheWait) {
    makeOversized();
    storage.trim(10, 100);
    storage.trim(10, 50);
    EXPECT_EQ(storage.scratchOversizeSinceUptime, 50.0);
    storage.trim(10, 79);
    EXPECT_TRUE(isKept());
    storage.trim(10, 80);
    EXPECT_FALSE(isKept());
}

TEST_F(ProcessStorageTest, GivingBackKeepsEveryNameAndEveryTimeOfTheLastCall) {
    for (std::int32_t pid = 1; pid <= 700; ++pid) {
        storage.previousCPUByPID[pid] = {{1, 2}, static_cast<std::uint64_t>(pid)};
        storage.metadataByPID[pid].name = std::to_string(pid);
        storage.nextCPUByPID[pid] = {};
        storage.activePIDBuffer.insert(pid);
    }
    storage.rawProcessBuffer.reserve(50000);
    storage.activePIDBuffer.reserve(50000);
    storage.staleMetadataPIDBuffer.reserve(50000);
    storage.previousCPUByPID.reserve(50000);
    storage.nextCPUByPID.reserve(50000);
    storage.metadataByPID.reserve(50000);
    storage.trim(700, 10);
    storage.trim(700, 40);
    EXPECT_EQ(storage.rawProcessBuffer.capacity(), 0U);
    EXPECT_EQ(storage.activePIDBuffer.capacity(), 0U);
    EXPECT_EQ(storage.staleMetadataPIDBuffer.capacity(), 0U);
    EXPECT_EQ(storage.nextCPUByPID.capacity(), 0U);
    EXPECT_LT(storage.previousCPUByPID.capacity(), 2000U);
    EXPECT_LT(storage.metadataByPID.capacity(), 2000U);
    ASSERT_EQ(storage.previousCPUByPID.size(), 700U);
    ASSERT_EQ(storage.metadataByPID.size(), 700U);
    for (std::int32_t pid = 1; pid <= 700; ++pid) {
        ASSERT_EQ(storage.previousCPUByPID.find(pid)->totalMachTime,
                  static_cast<std::uint64_t>(pid));
        ASSERT_EQ(storage.metadataByPID.find(pid)->name.string(), std::to_string(pid));
    }
}

TEST_F(ProcessStorageTest, GivingBackLeavesTheStoresThatAreNotTooLarge) {
    makeOversized();
    storage.rawProcessBuffer.reserve(limit);
    storage.previousCPUByPID.reserve(1000);
    const std::size_t capacity = storage.previousCPUByPID.capacity();
    storage.trim(10, 10);
    storage.trim(10, 40);
    EXPECT_EQ(storage.rawProcessBuffer.capacity(), limit);
    EXPECT_EQ(storage.previousCPUByPID.capacity(), capacity);
}

TEST_F(ProcessStorageTest, ResetForgetsEverythingButTheNames) {
    makeOversized();
    storage.previousCPUByPID[1] = {};
    storage.nextCPUByPID[1] = {};
    storage.metadataByPID[1].name = "kept";
    storage.rawProcessBuffer.resize(3);
    storage.activePIDBuffer.insert(1);
    storage.staleMetadataPIDBuffer.push_back(1);
    storage.lastListedPIDCount = 9;
    storage.scratchOversizeSinceUptime = 4;
    storage.reset();
    EXPECT_EQ(storage.previousCPUByPID.capacity(), 0U);
    EXPECT_EQ(storage.nextCPUByPID.capacity(), 0U);
    EXPECT_TRUE(storage.pidBuffer.empty());
    EXPECT_TRUE(storage.rawProcessBuffer.empty());
    EXPECT_TRUE(storage.staleMetadataPIDBuffer.empty());
    EXPECT_EQ(storage.activePIDBuffer.size(), 0U);
    EXPECT_EQ(storage.lastListedPIDCount, 0);
    EXPECT_FALSE(storage.scratchOversizeSinceUptime);
    EXPECT_EQ(storage.metadataByPID.find(1)->name.string(), "kept");
    EXPECT_EQ(storage.maximumPIDCapacity(), maximum);
}

TEST_F(ProcessStorageTest, ResetMakesAnOversizedNameCacheCompact) {
    for (std::int32_t pid = 1; pid <= 100; ++pid)
        storage.metadataByPID[pid].name = std::to_string(pid);
    storage.metadataByPID.reserve(1536);
    const std::size_t fitting = storage.metadataByPID.capacity();
    ASSERT_LE(fitting, limit);
    storage.reset();
    EXPECT_EQ(storage.metadataByPID.capacity(), fitting);
    storage.metadataByPID.reserve(limit + 1);
    storage.reset();
    EXPECT_LE(storage.metadataByPID.capacity(), 512U);
    EXPECT_EQ(storage.metadataByPID.size(), 100U);
    EXPECT_EQ(storage.metadataByPID.find(100)->name.string(), "100");
}

}  // namespace
}  // namespace vantor::process_storage_test
