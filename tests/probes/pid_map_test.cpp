#include "probes/pid_map.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vantor::pid_map_test {
namespace {

template <class Value>
std::map<std::int32_t, Value> contentsOf(const PIDMap<Value>& map) {
    std::map<std::int32_t, Value> contents;
    map.forEach([&](std::int32_t pid, const Value& value) {
        EXPECT_TRUE(contents.emplace(pid, value).second) << pid << " was visited twice";
    });
    return contents;
}

/// The map and the plain one must agree in all that can be asked.
void expectSame(const PIDMap<std::string>& map, const std::map<std::int32_t, std::string>& plain) {
    ASSERT_EQ(map.size(), plain.size());
    EXPECT_EQ(map.empty(), plain.empty());
    EXPECT_LE(map.size(), map.capacity());
    ASSERT_EQ(contentsOf(map), plain);
    for (const auto& [pid, value] : plain) {
        const std::string* const found = map.find(pid);
        ASSERT_NE(found, nullptr) << pid;
        ASSERT_EQ(*found, value) << pid;
    }
}

TEST(PIDMap, IsEmptyAndHoldsNoStorageAtFirst) {
    const PIDMap<int> map;
    EXPECT_TRUE(map.empty());
    EXPECT_EQ(map.size(), 0U);
    EXPECT_EQ(map.capacity(), 0U);
    EXPECT_EQ(map.find(1), nullptr);
    EXPECT_FALSE(map.contains(1));
}

TEST(PIDMap, CanBeClearedErasedAndShrunkWhileEmpty) {
    PIDMap<int> map;
    map.clear();
    map.erase(5);
    map.shrink(0);
    EXPECT_EQ(map.capacity(), 0U);
    map.reserve(0);
    EXPECT_EQ(map.capacity(), 0U);
}

TEST(PIDMap, MakesAValueOnFirstUseAndKeepsItAfterwards) {
    PIDMap<int> map;
    EXPECT_EQ(map[7], 0);
    map[7] = 3;
    EXPECT_EQ(map[7], 3);
    EXPECT_EQ(map.size(), 1U);
    EXPECT_TRUE(map.contains(7));
    EXPECT_FALSE(map.contains(8));
}

TEST(PIDMap, TakesTheSmallestAndTheLargestIdentifier) {
    PIDMap<int> map;
    map[1] = 10;
    map[2147483647] = 20;
    EXPECT_EQ(*map.find(1), 10);
    EXPECT_EQ(*map.find(2147483647), 20);
}

TEST(PIDMap, AgreesWithAPlainMapOverARandomStreamOfOperations) {
    std::mt19937 random(20260203);
    PIDMap<std::string> map;
    std::map<std::int32_t, std::string> plain;
    // A narrow range, so that places are shared and entries are erased from the middle of runs.
    std::uniform_int_distribution<std::int32_t> anyPID(1, 700);
    for (int step = 0; step < 60000; ++step) {
        const std::int32_t pid = anyPID(random);
        switch (random() % 16) {
            case 0: {
                const std::string* const found = map.find(pid);
                ASSERT_EQ(found != nullptr, plain.contains(pid));
                break;
            }
            case 1:
                if (random() % 400 == 0) {
                    map.clear();
                    plain.clear();
                }
                break;
            case 2:
                if (random() % 50 == 0) map.shrink(random() % 300);
                break;
            default:
                if (random() % 5 < 3) {
                    map[pid] = plain[pid] = std::to_string(step);
                } else {
                    map.erase(pid);
                    plain.erase(pid);
                }
        }
        if (step % 97 == 0) expectSame(map, plain);
    }
    expectSame(map, plain);
}

TEST(PIDMap, HoldsDenseRangesThatFallOnTheSamePlaces) {
    PIDMap<std::string> map;
    std::map<std::int32_t, std::string> plain;
    // With 4,096 places these all begin at the same one when only the low bits count.
    for (std::int32_t range = 0; range < 6; ++range) {
        for (std::int32_t i = 1; i <= 500; ++i) {
            const std::int32_t pid = range * 4096 + i;
            map[pid] = plain[pid] = std::to_string(pid);
        }
    }
    expectSame(map, plain);
    for (std::int32_t range = 0; range < 6; range += 2) {
        for (std::int32_t i = 1; i <= 500; ++i) {
            map.erase(range * 4096 + i);
            plain.erase(range * 4096 + i);
        }
    }
    expectSame(map, plain);
}

/// Whatever places the entries hash to, some runs go past the last place and on at the first.
TEST(PIDMap, ErasesFromRunsThatGoRoundTheEnd) {
    for (std::int32_t first = 1; first < 400; ++first) {
        PIDMap<std::string> map;
        std::map<std::int32_t, std::string> plain;
        map.reserve(12);  // sixteen places, three quarters of them taken
        for (std::int32_t i = 0; i < 12; ++i)
            map[first + i * 5] = plain[first + i * 5] = std::to_string(i);
        ASSERT_EQ(map.capacity(), 12U);
        for (std::int32_t i = 0; i < 12; i += 2) {
            map.erase(first + i * 5);
            plain.erase(first + i * 5);
            expectSame(map, plain);
        }
    }
}

TEST(PIDMap, ErasesNothingWhenAskedForAStranger) {
    PIDMap<int> map;
    map[4] = 1;
    map.erase(5);
    map.erase(4 + 4096);
    EXPECT_EQ(map.size(), 1U);
    map.erase(4);
    map.erase(4);
    EXPECT_EQ(map.size(), 0U);
}

TEST(PIDMap, AnErasedAndAClearedValueIsLetGo) {
    PIDMap<std::shared_ptr<int>> map;
    const auto value = std::make_shared<int>(1);
    map[3] = value;
    map.erase(3);
    EXPECT_EQ(value.use_count(), 1);
    map[3] = value;
    map.clear();
    EXPECT_EQ(value.use_count(), 1);
    EXPECT_EQ(map[3], nullptr) << "a new value, not the one of before";
}

TEST(PIDMap, ReservedRoomIsEnoughForThatMany) {
    for (const std::size_t count : {1U, 12U, 13U, 48U, 49U, 1000U}) {
        PIDMap<int> map;
        map.reserve(count);
        const std::size_t capacity = map.capacity();
        EXPECT_GE(capacity, count);
        for (std::size_t i = 1; i <= count; ++i)
            map[static_cast<std::int32_t>(i)] = 1;
        EXPECT_EQ(map.capacity(), capacity) << count;
    }
}

TEST(PIDMap, ClearKeepsTheCapacity) {
    PIDMap<int> map;
    for (std::int32_t pid = 1; pid <= 5000; ++pid)
        map[pid] = pid;
    const std::size_t capacity = map.capacity();
    map.clear();
    EXPECT_EQ(map.size(), 0U);
    EXPECT_EQ(map.capacity(), capacity);
    EXPECT_EQ(map.find(77), nullptr);
    EXPECT_THAT(contentsOf(map), testing::IsEmpty());
}

TEST(PIDMap, ShrinkKeepsAllEntriesAndGivesTheRestBack) {
    PIDMap<std::string> map;
    std::map<std::int32_t, std::string> plain;
    map.reserve(100000);
    for (std::int32_t pid = 3; pid < 3000; pid += 7)
        map[pid] = plain[pid] = std::to_string(pid);
    map.shrink(0);
    EXPECT_LT(map.capacity(), 2 * map.size() + 16);
    expectSame(map, plain);
    map.shrink(5000);
    EXPECT_GE(map.capacity(), 5000U);
    expectSame(map, plain);
}

TEST(PIDMap, ResetGivesEverythingBack) {
    PIDMap<int> map;
    map[1] = 1;
    map.reset();
    EXPECT_EQ(map.capacity(), 0U);
    EXPECT_EQ(map.find(1), nullptr);
}

TEST(PIDMap, TradesPlacesWithAnother) {
    PIDMap<int> full;
    PIDMap<int> empty;
    full[9] = 1;
    std::swap(full, empty);
    EXPECT_EQ(full.find(9), nullptr);
    EXPECT_EQ(*empty.find(9), 1);
}

TEST(PIDSet, KnowsWhoWasPutIn) {
    PIDSet set;
    set.reserve(100);
    const std::size_t capacity = set.capacity();
    set.insert(5);
    set.insert(5);
    set.insert(6);
    EXPECT_EQ(set.size(), 2U);
    EXPECT_TRUE(set.contains(5));
    EXPECT_FALSE(set.contains(7));
    set.clear();
    EXPECT_EQ(set.size(), 0U);
    EXPECT_FALSE(set.contains(5));
    EXPECT_EQ(set.capacity(), capacity);
    set.reset();
    EXPECT_EQ(set.capacity(), 0U);
}

}  // namespace
}  // namespace vantor::pid_map_test
