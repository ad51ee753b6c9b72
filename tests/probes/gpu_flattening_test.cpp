#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "probes/gpu_statistics.h"

namespace vantor::gpu_flattening_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using Pairs = std::vector<std::pair<std::string, double>>;

Pairs pairsOf(const FlattenedStatistics& statistics) {
    Pairs pairs;
    for (std::size_t i = 0; i < statistics.size(); ++i)
        pairs.emplace_back(statistics[i].path, statistics[i].value);
    return pairs;
}

Pairs flattened(const PropertyDictionary& dictionary, std::string prefix = {}, int depth = 0) {
    FlattenedStatistics result;
    const std::string before = prefix;
    appendNumericValues(dictionary, prefix, depth, result);
    EXPECT_EQ(prefix, before);
    return pairsOf(result);
}

PropertyValue nested(PropertyDictionary dictionary) {
    return PropertyValue(std::move(dictionary));
}

/// A number under each of the keys 0, 1 and so on.
PropertyDictionary countersUpTo(int count) {
    PropertyDictionary dictionary;
    for (int i = 0; i < count; ++i)
        dictionary.push_back({std::to_string(i), i});
    return dictionary;
}

/// Dictionaries in dictionaries, each with its depth under "V".
PropertyDictionary nestedDepths(int deepest, int depth = 0) {
    PropertyDictionary dictionary{{"V", depth}};
    if (depth < deepest) dictionary.push_back({"D", nested(nestedDepths(deepest, depth + 1))});
    return dictionary;
}

TEST(GPUFlattening, EmptyDictionaryGivesNothing) {
    EXPECT_THAT(flattened({}), IsEmpty());
}

TEST(GPUFlattening, NumbersAreTakenInOrderUnderLowerCasedPaths) {
    EXPECT_THAT(flattened({{"Device Utilization %", 12}, {"ZÄ", 0.5}, {"a", -3}}),
                ElementsAre(Pair("device utilization %", 12), Pair("zÄ", 0.5), Pair("a", -3)));
}

TEST(GPUFlattening, WhatIsNoNumberIsIgnored) {
    EXPECT_THAT(flattened({{"True", true},
                           {"False", false},
                           {"Text", "12"},
                           {"Data", PropertyValue(PropertyValue::Data{std::byte{1}})},
                           {"List", PropertyValue(PropertyValue::Array{PropertyValue(1),
                                                                       nested({{"Inside", 2}})})},
                           {"Number", 1}}),
                ElementsAre(Pair("number", 1)));
}

TEST(GPUFlattening, NestedKeysAreJoinedByADot) {
    EXPECT_THAT(flattened({{"A", nested({{"B", nested({{"C", 1}})}, {"D", 2}})}, {"E", 3}}),
                ElementsAre(Pair("a.b.c", 1), Pair("a.d", 2), Pair("e", 3)));
}

TEST(GPUFlattening, APrefixPrecedesEveryPath) {
    EXPECT_THAT(flattened({{"A", 1}, {"B", nested({{"C", 2}})}}, "Top"),
                ElementsAre(Pair("top.a", 1), Pair("top.b.c", 2)));
}

TEST(GPUFlattening, EmptyKeysAddNoDotAtTheTop) {
    EXPECT_THAT(flattened({{"", 1}, {"", nested({{"A", 2}, {"", 3}})}, {"B", nested({{"", 4}})}}),
                ElementsAre(Pair("", 1), Pair("a", 2), Pair("", 3), Pair("b.", 4)));
}

TEST(GPUFlattening, GoesDownToDepthThree) {
    EXPECT_THAT(flattened(nestedDepths(9)),
                ElementsAre(Pair("v", 0), Pair("d.v", 1), Pair("d.d.v", 2), Pair("d.d.d.v", 3)));
    EXPECT_THAT(flattened(nestedDepths(9), {}, 3), ElementsAre(Pair("v", 0)));
    EXPECT_THAT(flattened(nestedDepths(9), {}, 4), IsEmpty());
}

TEST(GPUFlattening, StopsAt512Entries) {
    EXPECT_EQ(flattened(countersUpTo(511)).size(), 511u);
    EXPECT_EQ(flattened(countersUpTo(512)).size(), 512u);
    const Pairs pairs = flattened(countersUpTo(600));
    ASSERT_EQ(pairs.size(), 512u);
    EXPECT_THAT(pairs.back(), Pair("511", 511));
}

TEST(GPUFlattening, StopsAt512EntriesAlsoInsideAndBehindANestedDictionary) {
    PropertyDictionary dictionary{
        {"In", nested(countersUpTo(300))}, {"Too", nested(countersUpTo(300))}, {"Behind", 1}};
    const Pairs pairs = flattened(dictionary);
    ASSERT_EQ(pairs.size(), 512u);
    EXPECT_THAT(pairs.back(), Pair("too.211", 211));
}

TEST(GPUFlattening, AFullResultTakesNoMore) {
    FlattenedStatistics result;
    std::string prefix;
    appendNumericValues(countersUpTo(512), prefix, 0, result);
    appendNumericValues({{"more", 1}}, prefix, 0, result);
    result.append("", "more", 1);
    EXPECT_EQ(result.size(), 512u);
}

TEST(GPUFlattening, ClearedStatisticsKeepNothing) {
    FlattenedStatistics result;
    result.append("a", "b", 1);
    result.clear();
    EXPECT_EQ(result.size(), 0u);
    result.append("", "C", 2);
    EXPECT_THAT(pairsOf(result), ElementsAre(Pair("c", 2)));
}

}  // namespace
}  // namespace vantor::gpu_flattening_test
