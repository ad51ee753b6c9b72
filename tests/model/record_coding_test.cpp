#include "model/record_coding.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "model/agreed_document.h"
#include "model/filled_records.h"
#include "model/record_walk.h"

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
Kind kind(const char* name, const Record& record, const json& written) {
    return {name,
            written,
            record_walk::keys<Record>(true),
            [record] { return encode(record); },
            [record](const json& value) { return decode<Record>(value) == record; },
            [](const json& value) -> std::optional<json> {
                const auto decoded = decode<Record>(value);
                return decoded ? encode(*decoded) : std::nullopt;
            }};
}

ProcessSample sampleOf(const std::vector<ProcessStats>& processes) {
    return {processes, {processes[1]}, {processes[1], processes[0]}};
}

/// That part of the agreed document; null where it has none.
json agreed(const char* place) {
    static const json document = json::parse(filled::agreedDocument(), nullptr, false);
    const json::json_pointer pointer(place);
    return document.is_object() && document.contains(pointer) ? document[pointer] : json();
}

std::vector<Kind> kinds() {
    const SystemSnapshot snapshot = filled::snapshot();
    const json first = agreed("/processes/0");
    const json second = agreed("/processes/1");
    return {kind("CPU", snapshot.cpu, agreed("/cpu")),
            kind("Memory", snapshot.memory, agreed("/memory")),
            kind("Interface", snapshot.network.interfaces[0], agreed("/network/interfaces/0")),
            kind("Network", snapshot.network, agreed("/network")),
            kind("GPU", snapshot.gpus[0], agreed("/gpus/0")),
            kind("Volume", snapshot.volumes[0], agreed("/volumes/0")),
            kind("Process", snapshot.processes[0], first),
            kind("ProcessSample", sampleOf(snapshot.processes),
                 {{"all", {first, second}},
                  {"sortedByCPU", json::array({second})},
                  {"sortedByMemory", {second, first}}}),
            kind("System", snapshot.system, agreed("/system")),
            kind("Power", *snapshot.power, agreed("/power")),
            kind("Snapshot", snapshot, agreed(""))};
}

class RecordCoding : public testing::TestWithParam<Kind> {};

INSTANTIATE_TEST_SUITE_P(Records, RecordCoding, testing::ValuesIn(kinds()),
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
