#include "model/snapshot_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

#include "model/document_of.h"
#include "model/filled_records.h"
#include "model/record_coding.h"

namespace vantor::snapshot_document_test {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

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

}  // namespace
}  // namespace vantor::snapshot_document_test
