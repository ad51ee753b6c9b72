#include "model/snapshot_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <string>
#include <type_traits>

#include "model/agreed_document.h"
#include "model/document_of.h"
#include "model/filled_records.h"
#include "model/record_coding.h"
#include "model/record_walk.h"

namespace vantor::snapshot_document_test {
namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

std::set<std::string> keysOf(const json& object) {
    std::set<std::string> keys;
    for (const auto& [key, value] : object.items())
        keys.insert(key);
    return keys;
}

TEST(SnapshotDocument, HasEveryFieldUnderItsNameInOneLayout) {
    EXPECT_EQ(documentOf(filled::snapshot()), filled::agreedDocument());
}

TEST(SnapshotDocument, SaysWhatTheRecordsCodingSays) {
    for (const SystemSnapshot& snapshot : {filled::snapshot(), SystemSnapshot::empty()})
        EXPECT_EQ(json::parse(documentOf(snapshot)), encode(snapshot));
}

TEST(SnapshotDocument, OfTheStandInHasEveryKeyThatIsNotOptional) {
    const json document = json::parse(documentOf(SystemSnapshot::empty()));
    EXPECT_EQ(keysOf(document), record_walk::keys<SystemSnapshot>(false));
    EXPECT_EQ(keysOf(document["cpu"]), record_walk::keys<CPUStats>(false));
    EXPECT_EQ(keysOf(document["memory"]), record_walk::keys<MemoryStats>(false));
    EXPECT_EQ(keysOf(document["network"]), record_walk::keys<NetworkStats>(false));
    EXPECT_EQ(keysOf(document["system"]), record_walk::keys<SystemInfoStats>(false));
    EXPECT_EQ(document["cpu"]["perCoreUsage"], json::array());
    EXPECT_EQ(document["cpu"]["totalUsage"], 0);
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
    record_walk::forEachValue(snapshot, "", [](const std::string& place, auto& value) {
        if constexpr (isOptional<std::remove_cvref_t<decltype(value)>>) {
            if (place != "power") value.reset();
        }
    });
    const std::string document = documentOf(snapshot);
    EXPECT_THAT(document, Not(HasSubstr("null")));
    const json value = json::parse(document);
    EXPECT_EQ(value, encode(snapshot));
    EXPECT_EQ(keysOf(value["gpus"][0]), record_walk::keys<GPUStats>(false));
    EXPECT_EQ(keysOf(value["power"]), record_walk::keys<PowerStats>(false));
    const auto& interfaces = value["network"]["interfaces"];
    EXPECT_EQ(keysOf(interfaces[0]), record_walk::keys<NetworkInterfaceStats>(false));
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
