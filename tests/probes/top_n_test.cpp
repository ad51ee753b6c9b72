#include "probes/top_n.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace vantor::top_n_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using List = std::vector<ProcessStats>;

ProcessStats entry(std::int32_t pid, double percent, std::uint64_t resident) {
    ProcessStats stats;
    stats.pid = pid;
    stats.cpuPercent = percent;
    stats.residentMemoryBytes = resident;
    return stats;
}

template <class Weigh>
List heaviest(const List& list, Weigh weigh) {
    TopN bounded(weigh);
    for (std::size_t i = 0; i < list.size(); ++i)
        bounded.offer(list, i);
    return bounded.copyFrom(list);
}

List byCPU(const List& list) {
    return heaviest(list, [](const ProcessStats& p) { return p.cpuPercent; });
}

List byMemory(const List& list) {
    return heaviest(list, [](const ProcessStats& p) { return p.residentMemoryBytes; });
}

/// The same by sorting all: a wholly different pipeline.
template <class Weigh>
List sorted(List list, Weigh weigh) {
    std::stable_sort(list.begin(), list.end(), [&](const ProcessStats& a, const ProcessStats& b) {
        return weigh(a) != weigh(b) ? weigh(a) > weigh(b) : a.pid < b.pid;
    });
    if (list.size() > 18) list.resize(18);
    return list;
}

std::vector<std::int32_t> pidsOf(const List& list) {
    std::vector<std::int32_t> pids;
    for (const ProcessStats& stats : list)
        pids.push_back(stats.pid);
    return pids;
}

TEST(TopN, OfNothingIsNothing) {
    EXPECT_THAT(byCPU({}), IsEmpty());
}

TEST(TopN, ComesFirst) {
    const List list{entry(1, 5, 30), entry(2, 90, 10), entry(3, 20, 20)};
    EXPECT_THAT(pidsOf(byCPU(list)), ElementsAre(2, 3, 1));
    EXPECT_THAT(pidsOf(byMemory(list)), ElementsAre(1, 3, 2));
}

TEST(TopN, EqualsGoByLowerIdentifierWhateverTheirOrder) {
    const List list{entry(9, 1, 1), entry(4, 1, 1), entry(7, 2, 1), entry(2, 1, 1)};
    EXPECT_THAT(pidsOf(byCPU(list)), ElementsAre(7, 2, 4, 9));
    EXPECT_THAT(pidsOf(byMemory(list)), ElementsAre(2, 4, 7, 9));
}

TEST(TopN, ALateEqualWithALowerIdentifierPushesTheLastOut) {
    List list;
    for (std::int32_t pid = 2; pid <= 19; ++pid)
        list.push_back(entry(pid, 0, 0));
    list.push_back(entry(1, 0, 0));
    const List kept = byCPU(list);
    EXPECT_EQ(kept.size(), 18U);
    EXPECT_EQ(kept.front().pid, 1);
    EXPECT_EQ(kept.back().pid, 18);
}

TEST(TopN, MemoryIsComparedUnsigned) {
    const List list{entry(1, 0, 1), entry(2, 0, std::numeric_limits<std::uint64_t>::max()),
                    entry(3, 0, std::uint64_t{1} << 63)};
    EXPECT_THAT(pidsOf(byMemory(list)), ElementsAre(2, 3, 1));
}

TEST(TopN, KeepsEighteenAtMost) {
    for (const std::size_t count : {1U, 17U, 18U, 19U, 400U}) {
        List rising;
        List falling;
        for (std::size_t i = 1; i <= count; ++i) {
            const auto pid = static_cast<std::int32_t>(i);
            rising.push_back(entry(pid, pid, i));
            falling.push_back(entry(pid, -pid, count - i));
        }
        const std::size_t kept = std::min<std::size_t>(count, 18);
        EXPECT_EQ(byCPU(rising).size(), kept);
        EXPECT_EQ(byCPU(rising).front().pid, static_cast<std::int32_t>(count));
        EXPECT_EQ(byMemory(falling).size(), kept);
        EXPECT_EQ(byMemory(falling).front().pid, 1);
    }
}

TEST(TopN, AgreesWithSortingTheWholeList) {
    std::mt19937 random(18);
    for (std::size_t count = 0; count < 60; ++count) {
        for (int round = 0; round < 30; ++round) {
            List list;
            for (std::size_t i = 0; i < count; ++i) {
                // Few values, so that there are many ties.
                list.push_back(entry(static_cast<std::int32_t>(i) + 1,
                                     static_cast<double>(random() % 7) * 12.5, random() % 5));
            }
            std::shuffle(list.begin(), list.end(), random);
            const auto percent = [](const ProcessStats& p) { return p.cpuPercent; };
            const auto memory = [](const ProcessStats& p) { return p.residentMemoryBytes; };
            ASSERT_EQ(byCPU(list), sorted(list, percent)) << count;
            ASSERT_EQ(byMemory(list), sorted(list, memory)) << count;
        }
    }
}

}  // namespace
}  // namespace vantor::top_n_test
