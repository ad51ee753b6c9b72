#include "probes/gpu_matching.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "probes/gpu_names.h"
#include "support/named_row.h"

namespace vantor::gpu_matching_test {
namespace {

using testing::ElementsAre;
using Index = std::optional<std::size_t>;

MetalDeviceMetadata device(std::uint64_t id, const std::string& name) {
    MetalDeviceMetadata metadata;
    metadata.registryEntryID = id;
    metadata.name = name;
    metadata.normalizedName = normalizedGPUName(name);
    return metadata;
}

RegistryStats entry(std::optional<std::uint64_t> id, const std::string& name) {
    RegistryStats stats;
    stats.registryEntryID = id;
    stats.normalizedName = normalizedGPUName(name);
    return stats;
}

struct MatchRow : NamedRow {
    std::vector<MetalDeviceMetadata> devices;
    std::vector<RegistryStats> registry;
    std::vector<std::size_t> excluded;
    Index expected;  ///< of the device at `place`
    std::size_t place = 0;
};

class Match : public testing::TestWithParam<MatchRow> {};

TEST_P(Match, IsTheEntryThatBelongsToTheDevice) {
    const MatchRow& row = GetParam();
    EXPECT_EQ(matchingRegistryStatsIndex(row.devices[row.place], row.place, row.registry,
                                         row.devices, row.excluded),
              row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    GPUMatchingByIdentifier, Match,
    testing::Values(
        MatchRow{{"NothingThere"}, {device(1, "a")}, {}, {}, {}},
        MatchRow{{"TheEqualOne"},
                 {device(2, "")},
                 {entry({}, ""), entry(1, ""), entry(2, ""), entry(2, "")},
                 {},
                 2},
        MatchRow{{"NamesDoNotMatter"}, {device(2, "a")}, {entry(1, "a"), entry(2, "b")}, {}, 1},
        MatchRow{{"TheNextWhenTheFirstIsTaken"},
                 {device(2, "")},
                 {entry(2, ""), entry(3, ""), entry(2, "")},
                 {0},
                 2},
        MatchRow{
            {"NoneWhenAllAreTaken"}, {device(2, "")}, {entry(2, ""), entry(2, "")}, {1, 0}, {}},
        MatchRow{{"ZeroIsAnIdentifierButAbsentIsNot"},
                 {device(0, "")},
                 {entry({}, ""), entry(0, "")},
                 {},
                 1}),
    rowName<MatchRow>);

INSTANTIATE_TEST_SUITE_P(
    GPUMatchingByName, Match,
    testing::Values(MatchRow{{"TheOnlyEqualOne"},
                             {device(1, "Radeon Pro")},
                             {entry({}, "geforce"), entry({}, "radeonpro")},
                             {},
                             1},
                    MatchRow{{"TheOneThatContainsIt"},
                             {device(1, "Radeon")},
                             {entry(8, "geforce"), entry(9, "amd radeon pro")},
                             {},
                             1},
                    MatchRow{{"TheOneThatItContains"},
                             {device(1, "AMD Radeon Pro")},
                             {entry(8, "geforce"), entry(9, "radeon")},
                             {},
                             1},
                    MatchRow{{"NoneOfTwoThatAreSimilar"},
                             {device(1, "Radeon")},
                             {entry(8, "radeon"), entry(9, "radeon pro")},
                             {},
                             {}},
                    MatchRow{{"NoneOfTwoThatAreSimilarEvenWhenOneIsTaken"},
                             {device(1, "Radeon")},
                             {entry(8, "radeon"), entry(9, "radeon")},
                             {0},
                             {}},
                    MatchRow{{"NoneWhenTheOnlyOneIsTaken"},
                             {device(1, "Radeon"), device(2, "GeForce")},
                             {entry(8, "radeon"), entry(9, "iris")},
                             {0},
                             {}},
                    MatchRow{{"NoneWhenTheDeviceHasNoName"},
                             {device(1, "--")},
                             {entry(8, "radeon"), entry(9, "")},
                             {},
                             {}},
                    MatchRow{{"EntriesWithoutANameDoNotCount"},
                             {device(1, "Radeon")},
                             {entry(8, ""), entry(9, "radeon"), entry({}, "")},
                             {},
                             1},
                    MatchRow{{"NeverForTwoDevicesWithSimilarNames"},
                             {device(1, "Radeon"), device(2, "Radeon Pro")},
                             {entry({}, "radeon"), entry({}, "geforce")},
                             {},
                             {}},
                    MatchRow{{"NeverForTwoDevicesWithSimilarNamesWhicheverIsLonger"},
                             {device(1, "Radeon"), device(2, "Radeon Pro")},
                             {entry({}, "radeon pro"), entry({}, "geforce")},
                             {},
                             {},
                             1},
                    MatchRow{{"NeverForTwoDevicesWithSimilarNamesThoughTheEntryIsLikeOneOnly"},
                             {device(1, "Radeon Pro"), device(2, "Radeon")},
                             {entry({}, "pro"), entry({}, "geforce")},
                             {},
                             {}},
                    MatchRow{{"ButByIdentifierForTwoDevicesWithSimilarNames"},
                             {device(1, "Radeon"), device(2, "Radeon")},
                             {entry(1, "radeon"), entry(2, "radeon")},
                             {0},
                             1,
                             1},
                    MatchRow{{"AnotherDeviceWithoutANameIsNotSimilar"},
                             {device(1, "Radeon"), device(2, "")},
                             {entry({}, "radeon")},
                             {},
                             0},
                    MatchRow{{"NotTheEntryWithAnotherDevicesIdentifier"},
                             {device(1, "Radeon"), device(2, "GeForce")},
                             {entry(2, "radeon"), entry(9, "radeon pro")},
                             {},
                             1},
                    MatchRow{{"NotTheEntryThatIsSimilarToAnotherDeviceToo"},
                             {device(1, "Radeon"), device(2, "GeForce")},
                             {entry(8, "radeon geforce"), entry(9, "radeon")},
                             {},
                             1},
                    MatchRow{{"NoneWhenTheOnlyEntryIsSimilarToBothDevices"},
                             {device(1, "Radeon"), device(2, "GeForce")},
                             {entry(8, "radeon geforce")},
                             {},
                             {}}),
    rowName<MatchRow>);

INSTANTIATE_TEST_SUITE_P(
    GPUMatchingTheOnlyOnes, Match,
    testing::Values(
        MatchRow{{"EntryWithoutIdentifierWithACompatibleName"},
                 {device(1, "Radeon Pro")},
                 {entry({}, "radeon")},
                 {},
                 0},
        MatchRow{{"NotWithClearlyDifferentNames"},
                 {device(1, "Radeon Pro")},
                 {entry({}, "geforce")},
                 {},
                 {}},
        MatchRow{{"DeviceWithoutAName"}, {device(1, "")}, {entry({}, "geforce")}, {}, 0},
        MatchRow{{"EntryWithoutAName"}, {device(1, "Radeon")}, {entry({}, "")}, {}, 0},
        MatchRow{{"NeitherHasAName"}, {device(1, "")}, {entry({}, "")}, {}, 0},
        MatchRow{{"AlsoWithAnotherIdentifier"}, {device(1, "")}, {entry(7, "geforce")}, {}, 0},
        MatchRow{{"NotWhenTaken"}, {device(1, "")}, {entry({}, "")}, {0}, {}},
        MatchRow{{"NotOfTwoEntries"}, {device(1, "")}, {entry({}, ""), entry({}, "")}, {}, {}},
        MatchRow{{"NotOfTwoDevices"}, {device(1, ""), device(2, "")}, {entry({}, "")}, {}, {}}),
    rowName<MatchRow>);

TEST(GPUMatching, OnlyTheFirstPlaceTakesTheOnlyEntry) {
    const std::vector devices{device(1, "")};
    EXPECT_EQ(matchingRegistryStatsIndex(devices[0], 1, std::vector{entry({}, "")}, devices, {}),
              std::nullopt);
}

std::vector<std::string> sorted(std::vector<RegistryStats> stats) {
    sortRegistryStats(stats);
    std::vector<std::string> described;
    for (const RegistryStats& each : stats) {
        const auto& id = each.registryEntryID;
        described.push_back(each.normalizedName + ":" + (id ? std::to_string(*id) : "-") +
                            each.name.value_or(""));
    }
    return described;
}

TEST(GPURegistryOrder, IsByNameInCodePointOrder) {
    EXPECT_THAT(sorted({entry(1, "b"), entry(2, "ä"), entry(3, "a1"), entry(4, ""), entry(5, "a"),
                        entry(6, "𝐀"), entry(7, "1"), entry(8, "显")}),
                ElementsAre(":4", "1:7", "a:5", "a1:3", "b:1", "ä:2", "显:8", "𝐀:6"));
}

TEST(GPURegistryOrder, EqualNamesAreByIdentifierAndThoseWithoutOneLast) {
    EXPECT_THAT(
        sorted({entry({}, "a"), entry(10, "a"), entry(9, "a"), entry({}, "b"), entry(1, "b")}),
        ElementsAre("a:9", "a:10", "a:-", "b:1", "b:-"));
}

TEST(GPURegistryOrder, KeepsTheOrderOfEquals) {
    std::vector<RegistryStats> stats;
    std::vector<std::string> with, without;
    for (int i = 0; i < 40; ++i) {
        stats.push_back(entry(i % 2 == 0 ? std::optional<std::uint64_t>(7) : std::nullopt, "a"));
        stats.back().name = "#" + std::to_string(i);
        (i % 2 == 0 ? with : without).push_back((i % 2 == 0 ? "a:7#" : "a:-#") + std::to_string(i));
    }
    with.insert(with.end(), without.begin(), without.end());
    EXPECT_EQ(sorted(stats), with);
}

}  // namespace
}  // namespace vantor::gpu_matching_test
