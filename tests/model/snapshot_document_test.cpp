#include "model/snapshot_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <bit>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "model/filled_records.h"
#include "model/record_coding.h"
#include "model/utf8.h"

namespace vantor {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

std::string documentOf(const SystemSnapshot& snapshot) {
    const auto result = encodedSnapshot(snapshot);
    const std::string* document = std::get_if<std::string>(&result);
    return document ? *document : "failed: " + std::get<DescribedError>(result).description;
}

constexpr auto filledDocument = R"({
  "cpu" : {
    "idleUsage" : 0.25,
    "loadAverage" : [
      1.5,
      2.5,
      3.5
    ],
    "logicalCoreCount" : 8,
    "model" : "Processor 9",
    "nominalFrequencyHz" : 2600000000,
    "perCoreUsage" : [
      0.75,
      0.0625
    ],
    "physicalCoreCount" : 4,
    "systemUsage" : 0.125,
    "temperatureCelsius" : 61.5,
    "totalUsage" : 0.5,
    "userUsage" : 0.375
  },
  "gpus" : [
    {
      "id" : "gpu:1",
      "isUnifiedMemory" : true,
      "name" : "Graphics 1",
      "recommendedWorkingSetBytes" : 33,
      "temperatureCelsius" : 55.5,
      "utilization" : 0.3125,
      "vramTotalBytes" : 32,
      "vramUsedBytes" : 31
    }
  ],
  "memory" : {
    "activeBytes" : 300,
    "availableBytes" : 99,
    "cachedBytes" : 50,
    "compressedBytes" : 101,
    "totalBytes" : 700,
    "usedBytes" : 600,
    "wiredBytes" : 200
  },
  "network" : {
    "downloadBytesPerSecond" : 21.5,
    "hostname" : "host.example",
    "interfaces" : [
      {
        "downloadBytesPerSecond" : 13.5,
        "ipv4Address" : "192.0.2.7",
        "ipv6Address" : "2001:db8::7",
        "isPointToPoint" : true,
        "name" : "en0",
        "receivedBytes" : 11,
        "sentBytes" : 12,
        "uploadBytesPerSecond" : 14.5
      }
    ],
    "primaryIPv4Address" : "192.0.2.8",
    "primaryIPv6Address" : "2001:db8::8",
    "primaryInterfaceName" : "en1",
    "uploadBytesPerSecond" : 22.5
  },
  "power" : {
    "chargeFraction" : 0.875,
    "cycleCount" : 72,
    "isCharging" : true,
    "isConnectedToAC" : true,
    "name" : "Battery 0",
    "timeRemainingMinutes" : 71
  },
  "processes" : [
    {
      "command" : "/usr/bin/worker",
      "cpuPercent" : 137.5,
      "name" : "worker",
      "pid" : 4242,
      "residentMemoryBytes" : 51
    }
  ],
  "system" : {
    "architecture" : "arm64",
    "hardwareModel" : "Model 3",
    "hostName" : "host",
    "isRunningUnderRosetta" : true,
    "kernelVersion" : "kernel 4",
    "lowPowerModeEnabled" : true,
    "operatingSystem" : "System 1.2.3",
    "thermalState" : "Serious",
    "uptimeSeconds" : 61.25
  },
  "timestamp" : "2026-11-14T17:53:42Z",
  "volumes" : [
    {
      "availableBytes" : 42,
      "isInternal" : true,
      "isReadOnly" : true,
      "isRemovable" : true,
      "name" : "Data",
      "path" : "/data",
      "totalBytes" : 41
    }
  ]
})";

TEST(SnapshotDocument, HasEveryFieldUnderItsNameInOneLayout) {
    EXPECT_EQ(documentOf(filled::snapshot()), filledDocument);
}

TEST(SnapshotDocument, SaysWhatTheRecordsCodingSays) {
    for (const SystemSnapshot& snapshot : {filled::snapshot(), SystemSnapshot::empty()})
        EXPECT_EQ(json::parse(documentOf(snapshot)), encode(snapshot));
}

TEST(SnapshotDocument, OfTheStandInHasEveryKeyThatIsNotOptional) {
    const json document = json::parse(documentOf(SystemSnapshot::empty()));
    EXPECT_EQ(document.size(), 8u);
    EXPECT_EQ(document["cpu"].size(), 9u);
    EXPECT_EQ(document["cpu"]["perCoreUsage"], json::array());
    EXPECT_EQ(document["cpu"]["totalUsage"], 0);
    EXPECT_EQ(document["memory"].size(), 7u);
    EXPECT_EQ(document["network"].size(), 4u);
    EXPECT_EQ(document["system"].size(), 9u);
    EXPECT_EQ(document["system"]["kernelVersion"], "");
    EXPECT_EQ(document["system"]["lowPowerModeEnabled"], false);
}

TEST(SnapshotDocument, OfASnapshotWithoutPowerHasNoPowerKey) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.power.reset();
    EXPECT_FALSE(json::parse(documentOf(snapshot)).contains("power"));
}

TEST(SnapshotDocument, OfABatteryWithoutACycleCountHasPowerWithoutThatKey) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.power->cycleCount.reset();
    const json document = json::parse(documentOf(snapshot));
    ASSERT_TRUE(document.contains("power"));
    EXPECT_FALSE(document["power"].contains("cycleCount"));
    EXPECT_TRUE(document["power"].contains("timeRemainingMinutes"));
}

TEST(SnapshotDocument, NeverSaysNull) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.cpu.nominalFrequencyHz.reset();
    snapshot.cpu.temperatureCelsius.reset();
    snapshot.network.primaryInterfaceName.reset();
    snapshot.network.primaryIPv4Address.reset();
    snapshot.network.primaryIPv6Address.reset();
    snapshot.network.interfaces[0].ipv4Address.reset();
    snapshot.network.interfaces[0].ipv6Address.reset();
    snapshot.gpus[0] = {"id", "name", false, {}, {}, {}, {}, {}};
    snapshot.power->cycleCount.reset();
    snapshot.power->timeRemainingMinutes.reset();
    const std::string document = documentOf(snapshot);
    EXPECT_THAT(document, Not(HasSubstr("null")));
    const json value = json::parse(document);
    EXPECT_EQ(value, encode(snapshot));
    EXPECT_EQ(value["gpus"][0].size(), 3u);
    EXPECT_EQ(value["power"].size(), 4u);
}

TEST(SnapshotDocument, OfAnEmptyProcessListHasAnEmptyArray) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.processes.clear();
    EXPECT_THAT(documentOf(snapshot), HasSubstr("\n  \"processes\" : [],\n"));
}

TEST(SnapshotDocument, WritesSlashesWithoutBackslashes) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.volumes[0].path = "/Volumes/Data/a b";
    const std::string document = documentOf(snapshot);
    EXPECT_THAT(document, HasSubstr("\"path\" : \"/Volumes/Data/a b\""));
    EXPECT_THAT(document, Not(HasSubstr("\\")));
}

TEST(SnapshotDocument, BeginsWithItsBraceAndEndsWithIt) {
    const std::string document = documentOf(filled::snapshot());
    EXPECT_EQ(document.front(), '{');
    EXPECT_EQ(document.back(), '}');
}

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

struct UnwritableNumber {
    const char* place;
    std::function<double&(SystemSnapshot&)> value;
};

TEST(SnapshotDocument, FailsForAnyNumberThatIsNotFiniteAndSaysWhereItIs) {
    const std::vector<UnwritableNumber> numbers{
        {"cpu.totalUsage", [](auto& s) -> double& { return s.cpu.totalUsage; }},
        {"cpu.userUsage", [](auto& s) -> double& { return s.cpu.userUsage; }},
        {"cpu.systemUsage", [](auto& s) -> double& { return s.cpu.systemUsage; }},
        {"cpu.idleUsage", [](auto& s) -> double& { return s.cpu.idleUsage; }},
        {"cpu.perCoreUsage[1]", [](auto& s) -> double& { return s.cpu.perCoreUsage[1]; }},
        {"cpu.loadAverage[2]", [](auto& s) -> double& { return s.cpu.loadAverage[2]; }},
        {"cpu.temperatureCelsius", [](auto& s) -> double& { return *s.cpu.temperatureCelsius; }},
        {"network.downloadBytesPerSecond",
         [](auto& s) -> double& { return s.network.downloadBytesPerSecond; }},
        {"network.uploadBytesPerSecond",
         [](auto& s) -> double& { return s.network.uploadBytesPerSecond; }},
        {"network.interfaces[0].downloadBytesPerSecond",
         [](auto& s) -> double& { return s.network.interfaces[0].downloadBytesPerSecond; }},
        {"network.interfaces[0].uploadBytesPerSecond",
         [](auto& s) -> double& { return s.network.interfaces[0].uploadBytesPerSecond; }},
        {"gpus[0].utilization", [](auto& s) -> double& { return *s.gpus[0].utilization; }},
        {"gpus[0].temperatureCelsius",
         [](auto& s) -> double& { return *s.gpus[0].temperatureCelsius; }},
        {"processes[0].cpuPercent", [](auto& s) -> double& { return s.processes[0].cpuPercent; }},
        {"system.uptimeSeconds", [](auto& s) -> double& { return s.system.uptimeSeconds; }},
        {"power.chargeFraction", [](auto& s) -> double& { return s.power->chargeFraction; }},
    };
    for (const auto& [place, value] : numbers) {
        for (const double number : {notANumber, infinite, -infinite}) {
            SystemSnapshot snapshot = filled::snapshot();
            value(snapshot) = number;
            EXPECT_THAT(documentOf(snapshot),
                        StartsWith(std::string("failed: The value of \"") + place + "\" is " +
                                   (number == number ? "infinite," : "not a number,")));
        }
    }
}

}  // namespace
}  // namespace vantor
