#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "platform/simulated/simulated_graphics.h"
#include "probes/gpu_statistics.h"
#include "support/named_row.h"

namespace vantor::gpu_extraction_test {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double twoTo64 = 18446744073709551616.0;

PropertyValue nested(PropertyDictionary dictionary) {
    return PropertyValue(std::move(dictionary));
}

struct ExtractionRow : NamedRow {
    PropertyDictionary statistics;
    std::optional<double> expected;
};

template <class Extractor>
auto extracted(const PropertyDictionary& dictionary, Extractor extractor) {
    FlattenedStatistics statistics;
    std::string prefix;
    appendNumericValues(dictionary, prefix, 0, statistics);
    return extractor(statistics);
}

class Utilization : public testing::TestWithParam<ExtractionRow> {};

TEST_P(Utilization, IsAFraction) {
    const auto fraction = extracted(GetParam().statistics, utilizationValue);
    ASSERT_EQ(fraction.has_value(), GetParam().expected.has_value());
    if (fraction) {
        EXPECT_DOUBLE_EQ(*fraction, *GetParam().expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    GPUExtraction, Utilization,
    testing::Values(
        ExtractionRow{{"Nothing"}, {}, {}}, ExtractionRow{{"OtherKeys"}, {{"Fan %", 12}}, {}},
        ExtractionRow{
            {"HalfAPercentOfActivityIsAThousandthAndABit"}, {{"GPU Activity(%)", 0.5}}, 0.005},
        ExtractionRow{{"HalfWithoutPercentSignIsAHalf"}, {{"GPU Utilization", 0.5}}, 0.5},
        ExtractionRow{{"OneWithoutPercentSignIsAll"}, {{"GPU Utilization", 1}}, 1},
        ExtractionRow{
            {"MoreThanOneWithoutPercentSignIsPercent"}, {{"GPU Utilization", 1.5}}, 0.015},
        ExtractionRow{{"OnePercent"}, {{"Device Utilization %", 1}}, 0.01},
        ExtractionRow{{"Zero"}, {{"Device Utilization %", 0}}, 0},
        ExtractionRow{{"All"}, {{"Device Utilization %", 100}}, 1},
        ExtractionRow{{"TooMuch"}, {{"Device Utilization %", 150}}, {}},
        ExtractionRow{{"JustTooMuch"}, {{"Device Utilization %", 100.01}}, {}},
        ExtractionRow{{"Negative"}, {{"Device Utilization %", -1}}, {}},
        ExtractionRow{{"Infinite"}, {{"Device Utilization %", infinite}}, {}},
        ExtractionRow{{"NotANumber"}, {{"GPU Utilization", notANumber}}, {}},
        ExtractionRow{{"AnImplausibleValueGivesWayToTheNextOfItsTerm"},
                      {{"GPU Utilization A", 150}, {"GPU Utilization B", 40}},
                      0.4},
        ExtractionRow{{"AnImplausibleValueGivesWayToTheNextTerm"},
                      {{"Device Utilization %", 150}, {"GPU Core Utilization", 0.25}},
                      0.25},
        ExtractionRow{{"TheFirstTermWinsWhereverItsPairIs"},
                      {{"GPU Core Utilization", 4},
                       {"GPU Utilization", 3},
                       {"GPU Activity(%)", 2},
                       {"Device Utilization %", 1}},
                      0.01},
        ExtractionRow{{"TheSecondTermBeforeTheThird"},
                      {{"GPU Core Utilization", 4}, {"GPU Utilization", 3}, {"GPU Activity(%)", 2}},
                      0.02},
        ExtractionRow{{"TheThirdTermBeforeTheFourth"},
                      {{"GPU Core Utilization", 4}, {"GPU Utilization", 3}},
                      0.03},
        ExtractionRow{{"TheFirstPairOfATermWins"},
                      {{"GPU Utilization 1", 20}, {"GPU Utilization 2", 10}},
                      0.2},
        ExtractionRow{{"APercentSignAnywhereInThePathCounts"},
                      {{"In %", nested({{"GPU Utilization", 0.5}})}},
                      0.005},
        ExtractionRow{
            {"ATermMaySpanTheDot"}, {{"x", nested({{"my gpu utilization now", 9}})}}, 0.09}),
    rowName<ExtractionRow>);

class Temperature : public testing::TestWithParam<ExtractionRow> {};

TEST_P(Temperature, IsInDegrees) {
    EXPECT_EQ(extracted(GetParam().statistics, temperatureValue), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    GPUExtraction, Temperature,
    testing::Values(
        ExtractionRow{{"Nothing"}, {}, {}}, ExtractionRow{{"Plain"}, {{"Temperature", 45.5}}, 45.5},
        ExtractionRow{{"HighestInclusive"}, {{"Temperature", 150}}, 150},
        ExtractionRow{{"LowestInclusive"}, {{"Temperature", -20}}, -20},
        ExtractionRow{{"TooHigh"}, {{"Temperature", 150.01}}, {}},
        ExtractionRow{{"TooLow"}, {{"Temperature", -20.01}}, {}},
        ExtractionRow{{"Infinite"}, {{"Temperature", infinite}}, {}},
        ExtractionRow{{"NotANumber"}, {{"Temperature", notANumber}}, {}},
        ExtractionRow{{"InsideOfAPath"}, {{"Sensors", nested({{"Hot Spot Temperature", 60}})}}, 60},
        ExtractionRow{{"TheFirstTermWins"},
                      {{"Temperature", 1},
                       {"Temperature C", 2},
                       {"Temperature(C)", 3},
                       {"GPU Temperature", 4}},
                      4},
        ExtractionRow{{"TheSecondTermBeforeTheThird"},
                      {{"Temperature", 1}, {"Temperature C", 2}, {"Temperature(C)", 3}},
                      3},
        ExtractionRow{
            {"TheThirdTermBeforeTheFourth"}, {{"Memory Temperature", 1}, {"Temperature C", 2}}, 2},
        ExtractionRow{{"AnImplausibleValueGivesWay"},
                      {{"GPU Temperature", 255}, {"Temperature(C)", 51}},
                      51}),
    rowName<ExtractionRow>);

struct BytesRow : NamedRow {
    PropertyDictionary statistics;
    std::optional<std::uint64_t> used;
    std::optional<std::uint64_t> total;
};

class VRAMBytes : public testing::TestWithParam<BytesRow> {};

TEST_P(VRAMBytes, AreCounted) {
    EXPECT_EQ(extracted(GetParam().statistics, usedVRAMValue), GetParam().used);
    EXPECT_EQ(extracted(GetParam().statistics, totalVRAMValue), GetParam().total);
}

INSTANTIATE_TEST_SUITE_P(
    GPUExtraction, VRAMBytes,
    testing::Values(
        BytesRow{{"Nothing"}, {}, {}, {}},
        BytesRow{{"Both"}, {{"VRAM Total(MB)", 4}, {"VRAM Used(MB)", 2}}, 2097152, 4194304},
        BytesRow{{"UnitsOfThePrefixCount"}, {{"MB", nested({{"vram_total", 1}})}}, {}, 1048576},
        BytesRow{{"Zero"}, {{"vram used", 0}}, 0, {}},
        BytesRow{{"Negative"}, {{"vram used", -1}}, {}, {}},
        BytesRow{{"Infinite"}, {{"vram used", infinite}}, {}, {}},
        BytesRow{{"NotANumber"}, {{"vram used", notANumber}}, {}, {}},
        BytesRow{{"LargestProductBelowTheBound"},
                 {{"vram used gib", 17179869183.0}, {"vram total", std::nextafter(twoTo64, 0)}},
                 18446744072635809792U,
                 18446744073709549568U},
        BytesRow{{"ProductAtTheBound"},
                 {{"vram used gib", 17179869184.0}, {"vram total", twoTo64}},
                 {},
                 {}},
        BytesRow{{"ProductThatOverflowsTheDouble"},
                 {{"vram used gib", std::numeric_limits<double>::max()}},
                 {},
                 {}},
        BytesRow{{"AnImplausibleValueGivesWay"},
                 {{"vram used", -1}, {"vram used mb", 1}, {"vram used", 3}},
                 1048576,
                 {}},
        BytesRow{{"TheFirstTermWins"},
                 {{"vram_used", 1}, {"vram,used", 2}, {"vram used", 3}, {"vram_total", 4}},
                 3,
                 4},
        BytesRow{{"TheSecondTermBeforeTheThird"},
                 {{"vram_used", 1}, {"vram,used", 2}, {"vram_total", 3}, {"vram,total", 4}},
                 2,
                 4}),
    rowName<BytesRow>);

TEST(GPUExtraction, AThousandWithoutAUnitWordIsAThousandBytes) {
    EXPECT_EQ(extracted({{"vram used", 1000}}, usedVRAMValue), 1000u);
}

TEST(GPUExtraction, TwoUnderAPathWithMBIsTwoMebibytes) {
    EXPECT_EQ(extracted({{"vram used mb", 2}}, usedVRAMValue), 2097152u);
}

TEST(GPUExtraction, EverySpellingOfAUnitIsUnderstood) {
    for (const auto& [key, value, bytes] : usedMemoryInEveryUnit())
        EXPECT_EQ(extracted({{key, value}}, usedVRAMValue), bytes) << key;
}

}  // namespace
}  // namespace vantor::gpu_extraction_test
