#include "platform/linux/link_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace vantor::link_numbers_test {
namespace {

std::vector<LinkSource::Link> links(const std::vector<std::uint32_t>& indices) {
    std::vector<LinkSource::Link> list(indices.size());
    for (std::size_t i = 0; i < indices.size(); ++i)
        list[i].index = indices[i];
    return list;
}

TEST(LinkNumbers, AreTheKernelsWhereThoseFit) {
    LinkNumbers numbers;
    numbers.assign(links({4, 1, 65535}));
    EXPECT_EQ(numbers.number(0), 4);
    EXPECT_EQ(numbers.number(1), 1);
    EXPECT_EQ(numbers.number(2), 65535);
    EXPECT_EQ(numbers.placeOfNumber(1), 1u);
    EXPECT_EQ(numbers.placeOfNumber(65535), 2u);
    EXPECT_EQ(numbers.placeOfNumber(2), std::nullopt);
    EXPECT_EQ(numbers.placeOfIndex(4), 0u);
    EXPECT_EQ(numbers.placeOfIndex(5), std::nullopt);
}

TEST(LinkNumbers, AreFoldedWhereTheKernelsDoNotFit) {
    LinkNumbers numbers;
    numbers.assign(links({1, 65536, 2'000'000'000, 70000}));
    std::set<int> given;
    for (std::size_t place = 0; place < 4; ++place) {
        EXPECT_NE(numbers.number(place), 0);
        EXPECT_TRUE(given.insert(numbers.number(place)).second) << "no number twice";
        EXPECT_EQ(numbers.placeOfNumber(numbers.number(place)), place);
    }
    EXPECT_EQ(numbers.placeOfIndex(70000), 3u);
    EXPECT_EQ(numbers.placeOfIndex(65536), 1u);
}

TEST(LinkNumbers, StayTheSameFromDumpToDumpInAnyOrder) {
    LinkNumbers first;
    LinkNumbers second;
    first.assign(links({2, 65536, 131071, 65537}));
    second.assign(links({65537, 131071, 2, 65536}));
    EXPECT_EQ(first.number(0), second.number(2));
    EXPECT_EQ(first.number(1), second.number(3));
    EXPECT_EQ(first.number(2), second.number(1));
    EXPECT_EQ(first.number(3), second.number(0));
}

TEST(LinkNumbers, ATakenNumberYieldsTheNextFreeOneAroundTheEnd) {
    LinkNumbers numbers;
    // Both fold to 65535, and the next after that is 1.
    numbers.assign(links({65535, 65535 + 65534, 2 * 65535 + 65534}));
    EXPECT_EQ(numbers.number(0), 65535);
    EXPECT_EQ(numbers.number(1), 1);
    EXPECT_EQ(numbers.number(2), 2);
}

TEST(LinkNumbers, ALinkWithoutAnIndexHasNone) {
    LinkNumbers numbers;
    numbers.assign(links({0, 3}));
    EXPECT_EQ(numbers.number(0), 0);
    EXPECT_EQ(numbers.placeOfNumber(0), std::nullopt);
}

}  // namespace
}  // namespace vantor::link_numbers_test
