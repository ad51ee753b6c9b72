#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "model/document_of.h"
#include "model/filled_records.h"
#include "model/record_walk.h"
#include "model/utf8.h"

/// How single numbers and texts stand in a snapshot's document, and which cannot.
namespace vantor::snapshot_document_values_test {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::StartsWith;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

struct WrittenNumber {
    double value;
    const char* text;
};

TEST(SnapshotDocument, WritesFloatingValuesWithTheFewestDigitsThatReadBackTheSame) {
    const std::vector<WrittenNumber> numbers{
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {5.0, "5.0"},
        {0.1, "0.1"},
        {1.0 / 3, "0.3333333333333333"},
        {5e-324, "5e-324"},
        {1e300, "1e+300"},
        {1.7976931348623157e308, "1.7976931348623157e+308"},
        {123456789012.0, "123456789012.0"},
        {std::nextafter(1.0, 2.0), "1.0000000000000002"},
    };
    for (const auto& [value, text] : numbers) {
        SystemSnapshot snapshot = filled::snapshot();
        snapshot.system.uptimeSeconds = value;
        const std::string document = documentOf(snapshot);
        EXPECT_THAT(document, HasSubstr(std::string("\"uptimeSeconds\" : ") + text + "\n"));
        const double readBack = json::parse(document)["system"]["uptimeSeconds"].get<double>();
        EXPECT_EQ(std::bit_cast<std::uint64_t>(readBack), std::bit_cast<std::uint64_t>(value));
    }
}

TEST(SnapshotDocument, WritesIntegersOfEveryWidthWhole) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.processes[0].pid = std::numeric_limits<std::int32_t>::min();
    snapshot.processes[0].residentMemoryBytes = std::numeric_limits<std::uint64_t>::max();
    snapshot.cpu.nominalFrequencyHz = std::numeric_limits<std::uint64_t>::max();
    snapshot.power->timeRemainingMinutes = std::numeric_limits<std::int64_t>::min();
    const std::string document = documentOf(snapshot);
    EXPECT_THAT(document, HasSubstr("\"pid\" : -2147483648,"));
    EXPECT_THAT(document, HasSubstr("\"residentMemoryBytes\" : 18446744073709551615\n"));
    EXPECT_THAT(document, HasSubstr("\"nominalFrequencyHz\" : 18446744073709551615,"));
    EXPECT_THAT(document, HasSubstr("\"timeRemainingMinutes\" : -9223372036854775808\n"));
}

struct WrittenText {
    std::string text;
    const char* written;
};

TEST(SnapshotDocument, WritesAnyTextAsWellFormedOne) {
    const std::vector<WrittenText> texts{
        {"", R"("")"},
        {"a \"b\" \\ c", R"("a \"b\" \\ c")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {std::string("a\0b\x01\x1F\x7F", 6), "\"a\\u0000b\\u0001\\u001f\x7F\""},
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\""},
        {"a\xFF\"\xC3", "\"a\xEF\xBF\xBD\\\"\xEF\xBF\xBD\""},
        {"\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
    };
    for (const auto& [text, written] : texts) {
        SystemSnapshot snapshot = filled::snapshot();
        snapshot.processes[0].command = text;
        const std::string document = documentOf(snapshot);
        EXPECT_THAT(document, HasSubstr(std::string("\"command\" : ") + written + ",\n"));
        EXPECT_EQ(json::parse(document)["processes"][0]["command"], repairedUTF8(text));
    }
}

TEST(SnapshotDocument, FailsForACPUTemperatureThatIsNotANumber) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.cpu.temperatureCelsius = notANumber;
    const auto result = encodedSnapshot(snapshot);
    ASSERT_TRUE(std::holds_alternative<DescribedError>(result));
    EXPECT_EQ(std::get<DescribedError>(result).description,
              "The value of \"cpu.temperatureCelsius\" is not a number, and a JSON document can "
              "hold finite numbers only.");
}

TEST(SnapshotDocument, FailsForAnyNumberThatIsNotFiniteAndSaysWhereItIs) {
    SystemSnapshot snapshot = filled::snapshot();
    std::set<std::string> places;
    record_walk::forEachValue(snapshot, "", [&](const std::string& place, auto& value) {
        if constexpr (std::is_same_v<decltype(value), double&>) {
            places.insert(place);
            const double before = value;
            for (const double number : {notANumber, infinite, -infinite}) {
                value = number;
                EXPECT_THAT(documentOf(snapshot),
                            StartsWith("failed: The value of \"" + place + "\" is " +
                                       (number == number ? "infinite," : "not a number,")));
            }
            value = before;
        }
    });
    EXPECT_THAT(places, IsSupersetOf({"cpu.totalUsage", "cpu.perCoreUsage[1]",
                                      "network.interfaces[0].uploadBytesPerSecond",
                                      "gpus[0].utilization", "power.chargeFraction"}));
}

}  // namespace
}  // namespace vantor::snapshot_document_values_test
