#include "model/record_coding.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <ostream>
#include <set>
#include <string>

#include "model/filled_records.h"

namespace vantor::record_coding_test {
namespace {

using nlohmann::json;

/// One kind of record: what its filled sample looks like when written by hand.
struct Kind {
    std::string name;
    json written;
    std::set<std::string> optionalKeys;
    std::function<std::optional<json>()> encodeFilled;
    std::function<bool(const json&)> decodesToFilled;
    std::function<std::optional<json>(const json&)> recode;  ///< decoded, then encoded again

    friend void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }
};

template <class Record>
Kind kind(const char* name, const Record& record, const char* text,
          std::set<std::string> optionalKeys = {}) {
    return {name,
            json::parse(text),
            std::move(optionalKeys),
            [record] { return encode(record); },
            [record](const json& value) { return decode<Record>(value) == record; },
            [](const json& value) -> std::optional<json> {
                const auto decoded = decode<Record>(value);
                return decoded ? encode(*decoded) : std::nullopt;
            }};
}

constexpr auto cpuText = R"({"model": "Processor 9", "totalUsage": 0.5, "userUsage": 0.375,
    "systemUsage": 0.125, "idleUsage": 0.25, "perCoreUsage": [0.75, 0.0625],
    "logicalCoreCount": 8, "physicalCoreCount": 4, "loadAverage": [1.5, 2.5, 3.5],
    "nominalFrequencyHz": 2600000000, "temperatureCelsius": 61.5})";
constexpr auto memoryText = R"({"totalBytes": 700, "usedBytes": 600, "activeBytes": 300,
    "wiredBytes": 200, "compressedBytes": 101, "cachedBytes": 50, "availableBytes": 99})";
constexpr auto interfaceText = R"({"name": "en0", "ipv4Address": "192.0.2.7",
    "ipv6Address": "2001:db8::7", "receivedBytes": 11, "sentBytes": 12,
    "downloadBytesPerSecond": 13.5, "uploadBytesPerSecond": 14.5, "isPointToPoint": true})";
constexpr auto networkText = R"({"hostname": "host.example", "primaryInterfaceName": "en1",
    "primaryIPv4Address": "192.0.2.8", "primaryIPv6Address": "2001:db8::8",
    "downloadBytesPerSecond": 21.5, "uploadBytesPerSecond": 22.5, "interfaces": [
    {"name": "en0", "ipv4Address": "192.0.2.7", "ipv6Address": "2001:db8::7",
     "receivedBytes": 11, "sentBytes": 12, "downloadBytesPerSecond": 13.5,
     "uploadBytesPerSecond": 14.5, "isPointToPoint": true}]})";
constexpr auto gpuText = R"({"id": "gpu:1", "name": "Graphics 1", "isUnifiedMemory": true,
    "utilization": 0.3125, "temperatureCelsius": 55.5, "vramUsedBytes": 31,
    "vramTotalBytes": 32, "recommendedWorkingSetBytes": 33})";
constexpr auto volumeText = R"({"name": "Data", "path": "/data", "totalBytes": 41,
    "availableBytes": 42, "isInternal": true, "isRemovable": true, "isReadOnly": true})";
constexpr auto processText = R"({"pid": 4242, "name": "worker", "command": "/usr/bin/worker",
    "cpuPercent": 137.5, "residentMemoryBytes": 51})";
constexpr auto systemText = R"({"hostName": "host", "hardwareModel": "Model 3",
    "operatingSystem": "System 1.2.3", "kernelVersion": "kernel 4", "architecture": "arm64",
    "isRunningUnderRosetta": true, "uptimeSeconds": 61.25, "thermalState": "Serious",
    "lowPowerModeEnabled": true})";
constexpr auto powerText = R"({"name": "Battery 0", "chargeFraction": 0.875, "isCharging": true,
    "isConnectedToAC": true, "timeRemainingMinutes": 71, "cycleCount": 72})";

std::string processSampleText() {
    const auto withPid = [](int pid) {
        json process = json::parse(processText);
        process["pid"] = pid;
        return process;
    };
    return json{{"all", {withPid(4242), withPid(4243), withPid(4244)}},
                {"sortedByCPU", json::array({withPid(4243)})},
                {"sortedByMemory", {withPid(4244), withPid(4242)}}}
        .dump();
}

std::string snapshotText() {
    return json{{"timestamp", "2026-11-14T17:53:42Z"},
                {"cpu", json::parse(cpuText)},
                {"memory", json::parse(memoryText)},
                {"network", json::parse(networkText)},
                {"gpus", json::array({json::parse(gpuText)})},
                {"volumes", json::array({json::parse(volumeText)})},
                {"processes", json::array({json::parse(processText)})},
                {"system", json::parse(systemText)},
                {"power", json::parse(powerText)}}
        .dump();
}

class RecordCoding : public testing::TestWithParam<Kind> {};

INSTANTIATE_TEST_SUITE_P(
    Records, RecordCoding,
    testing::Values(
        kind("CPU", filled::cpu(), cpuText, {"nominalFrequencyHz", "temperatureCelsius"}),
        kind("Memory", filled::memory(), memoryText),
        kind("Interface", filled::interface(), interfaceText, {"ipv4Address", "ipv6Address"}),
        kind("Network", filled::network(), networkText,
             {"primaryInterfaceName", "primaryIPv4Address", "primaryIPv6Address"}),
        kind("GPU", filled::gpu(), gpuText,
             {"utilization", "temperatureCelsius", "vramUsedBytes", "vramTotalBytes",
              "recommendedWorkingSetBytes"}),
        kind("Volume", filled::volume(), volumeText),
        kind("Process", filled::process(), processText),
        kind("ProcessSample", filled::processSample(), processSampleText().c_str()),
        kind("System", filled::system(), systemText),
        kind("Power", filled::power(), powerText, {"timeRemainingMinutes", "cycleCount"}),
        kind("Snapshot", filled::snapshot(), snapshotText().c_str(), {"power"})),
    [](const auto& row) { return row.param.name; });

TEST_P(RecordCoding, WritesEveryFieldUnderItsOwnName) {
    EXPECT_EQ(GetParam().encodeFilled(), GetParam().written);
}

TEST_P(RecordCoding, ReadsBackWhatWasWritten) {
    EXPECT_TRUE(GetParam().decodesToFilled(GetParam().written));
}

TEST_P(RecordCoding, LeavesOutAnAbsentFieldAndReadsAMissingKeyAsAbsent) {
    for (const auto& key : GetParam().optionalKeys) {
        SCOPED_TRACE(key);
        json without = GetParam().written;
        ASSERT_EQ(without.erase(key), 1U);
        EXPECT_EQ(GetParam().recode(without), without);
    }
}

TEST_P(RecordCoding, RefusesADocumentThatLacksARequiredKey) {
    for (const auto& [key, value] : GetParam().written.items()) {
        if (GetParam().optionalKeys.contains(key)) continue;
        SCOPED_TRACE(key);
        json without = GetParam().written;
        without.erase(key);
        EXPECT_EQ(GetParam().recode(without), std::nullopt);
    }
}

bool isAnswerable(const json& field, const json& candidate) {
    if (field.is_number_float()) return candidate.is_number();
    if (field.is_number_integer()) return candidate.is_number_integer();
    return field.type() == candidate.type();
}

TEST_P(RecordCoding, RefusesAFieldOfAnotherType) {
    const json candidates{nullptr, true, 7, 1.5, "text", json::array(), json::object()};
    for (const auto& [key, value] : GetParam().written.items()) {
        for (const auto& candidate : candidates) {
            if (isAnswerable(value, candidate)) continue;
            SCOPED_TRACE(key + " = " + candidate.dump());
            json changed = GetParam().written;
            changed[key] = candidate;
            EXPECT_EQ(GetParam().recode(changed), std::nullopt);
        }
    }
}

TEST_P(RecordCoding, RefusesAListWithAnElementOfAnotherType) {
    for (const auto& [key, value] : GetParam().written.items()) {
        if (!value.is_array()) continue;
        SCOPED_TRACE(key);
        json changed = GetParam().written;
        changed[key].push_back(nullptr);
        EXPECT_EQ(GetParam().recode(changed), std::nullopt);
    }
}

TEST_P(RecordCoding, IgnoresAnUnknownKey) {
    json more = GetParam().written;
    more["fieldOfALaterVersion"] = {1, 2, 3};
    EXPECT_TRUE(GetParam().decodesToFilled(more));
}

TEST_P(RecordCoding, RefusesWhatIsNoObject) {
    for (const json& value : {json(nullptr), json(3), json("text"), json::array()}) {
        EXPECT_EQ(GetParam().recode(value), std::nullopt);
    }
}

}  // namespace
}  // namespace vantor::record_coding_test
