#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <type_traits>

#include "model/filled_records.h"
#include "model/record_coding.h"
#include "model/record_walk.h"

namespace vantor::record_values_test {
namespace {

using nlohmann::json;

TEST(SnapshotCoding, WritesNoPowerKeyForAMachineWithoutBattery) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.power.reset();
    const auto written = encode(snapshot);
    ASSERT_TRUE(written);
    EXPECT_FALSE(written->contains("power"));
    EXPECT_EQ(decode<SystemSnapshot>(*written), snapshot);
}

TEST(SnapshotCoding, KeepsThePlaceholder) {
    const auto written = encode(SystemSnapshot::empty());
    ASSERT_TRUE(written);
    EXPECT_EQ(decode<SystemSnapshot>(*written), SystemSnapshot::empty());
}

TEST(CPUCoding, KeepsAnEmptyListOfProcessors) {
    CPUStats cpu = filled::cpu();
    cpu.perCoreUsage.clear();
    const auto written = encode(cpu);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->at("perCoreUsage"), json::array());
    EXPECT_EQ(decode<CPUStats>(*written), cpu);
}

TEST(CPUCoding, KeepsFewerThanThreeLoadAverages) {
    for (const std::vector<double>& averages : {std::vector<double>{}, {1.5}, {1.5, 2.5}}) {
        CPUStats cpu = filled::cpu();
        cpu.loadAverage = averages;
        const auto written = encode(cpu);
        ASSERT_TRUE(written);
        EXPECT_EQ(decode<CPUStats>(*written), cpu);
    }
}

TEST(CPUCoding, ReadsAWholeNumberAsAFraction) {
    json written = *encode(filled::cpu());
    written["idleUsage"] = 1;
    const auto cpu = decode<CPUStats>(written);
    ASSERT_TRUE(cpu);
    EXPECT_EQ(cpu->idleUsage, 1.0);
}

TEST(CPUCoding, KeepsTheLastBitOfAFraction) {
    CPUStats cpu = filled::cpu();
    cpu.totalUsage = 1.0 / 3.0;
    cpu.perCoreUsage = {std::numeric_limits<double>::denorm_min(), 1 - 1e-16};
    const std::string text = encode(cpu)->dump();
    EXPECT_EQ(decode<CPUStats>(json::parse(text)), cpu);
}

struct IntegerRow {
    const char* name;
    const char* key;
    json value;
    bool fits;

    friend void PrintTo(const IntegerRow& row, std::ostream* out) { *out << row.name; }
};

class ProcessIntegers : public testing::TestWithParam<IntegerRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ProcessIntegers,
    testing::Values(IntegerRow{"LargestPid", "pid", 2147483647, true},
                    IntegerRow{"SmallestPid", "pid", -2147483648LL, true},
                    IntegerRow{"PidPast31Bits", "pid", 2147483648LL, false},
                    IntegerRow{"PidBelow31Bits", "pid", -2147483649LL, false},
                    IntegerRow{"PidPast63Bits", "pid", std::uint64_t{1} << 63, false},
                    IntegerRow{"LargestByteCount", "residentMemoryBytes", UINT64_MAX, true},
                    IntegerRow{"NegativeByteCount", "residentMemoryBytes", -1, false},
                    IntegerRow{"ByteCountPast64Bits", "residentMemoryBytes", 18446744073709551616.0,
                               false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(ProcessIntegers, AreReadOnlyWhenTheyFit) {
    json written = *encode(filled::process());
    written[GetParam().key] = GetParam().value;
    const auto process = decode<ProcessStats>(written);
    ASSERT_EQ(process.has_value(), GetParam().fits);
    if (!process) return;
    EXPECT_EQ(encode(*process), written);
}

TEST(CPUCoding, ReadsSignedCountsUpTo63Bits) {
    json written = *encode(filled::cpu());
    written["logicalCoreCount"] = INT64_MIN;
    ASSERT_TRUE(decode<CPUStats>(written));
    EXPECT_EQ(decode<CPUStats>(written)->logicalCoreCount, INT64_MIN);
    written["logicalCoreCount"] = std::uint64_t{1} << 63;
    EXPECT_FALSE(decode<CPUStats>(written));
}

TEST(SnapshotCoding, RefusesAnyNumberThatIsNotFinite) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    SystemSnapshot snapshot = filled::snapshot();
    int numbers = 0;
    record_walk::forEachValue(snapshot, "", [&](const std::string& place, auto& value) {
        if constexpr (std::is_same_v<decltype(value), double&>) {
            ++numbers;
            const double before = value;
            for (const double number :
                 {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}) {
                value = number;
                EXPECT_EQ(encode(snapshot), std::nullopt) << place << " = " << number;
            }
            value = before;
        }
    });
    EXPECT_GE(numbers, 16);
    EXPECT_TRUE(encode(snapshot));
}

TEST(ProcessSampleCoding, RefusesAValueThatIsNotANumberInAnyList) {
    for (auto list :
         {&ProcessSample::all, &ProcessSample::sortedByCPU, &ProcessSample::sortedByMemory}) {
        ProcessSample sample = filled::record<ProcessSample>();
        (sample.*list).back().cpuPercent = std::numeric_limits<double>::quiet_NaN();
        EXPECT_EQ(encode(sample), std::nullopt);
    }
}

}  // namespace
}  // namespace vantor::record_values_test
