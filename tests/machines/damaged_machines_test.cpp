#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "support/recorded_machine.h"

#include "machines/machine_document.h"

/// Recorded machines whose files are damaged: nothing may crash, and what is not known is absent.
namespace vantor::damaged_machines_test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// Twice as much as is read of any file.
constexpr std::uintmax_t hugeSize = std::uintmax_t{32} << 20;

enum class Damage { emptied, halved, garbage, huge, folder, removed };

constexpr std::array damages{Damage::emptied, Damage::halved, Damage::garbage,
                             Damage::huge,    Damage::folder, Damage::removed};

std::string nameOf(Damage damage) {
    switch (damage) {
        case Damage::emptied:
            return "emptied";
        case Damage::halved:
            return "halved";
        case Damage::garbage:
            return "garbage";
        case Damage::huge:
            return "huge";
        case Damage::folder:
            return "folder";
        case Damage::removed:
            return "removed";
    }
    return "";
}

void PrintTo(Damage damage, std::ostream* out) {
    *out << nameOf(damage);
}

void writeInPlace(const fs::path& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

std::string makeGarbage() {
    std::mt19937 random(20260101);
    std::string garbage(std::size_t{64} * 1024, '\0');
    for (char& letter : garbage)
        letter = static_cast<char>(random() & 0xFFU);
    return garbage;
}

void inflict(Damage damage, const fs::path& path) {
    static const std::string garbage = makeGarbage();
    switch (damage) {
        case Damage::emptied:
            fs::resize_file(path, 0);
            break;
        case Damage::halved:
            fs::resize_file(path, fs::file_size(path) / 2);
            break;
        case Damage::garbage:
            writeInPlace(path, garbage);
            break;
        case Damage::huge:  // what it said, and zero bytes without an end
            fs::resize_file(path, hugeSize);
            break;
        case Damage::folder:  // opens, but cannot be read, which no permission does to the
                              // superuser
            fs::remove(path);
            fs::create_directory(path);
            break;
        case Damage::removed:
            fs::remove(path);
            break;
    }
}

void inflict(Damage damage, const RecordedTree& tree) {
    for (const fs::path& path : tree.files())
        inflict(damage, path);
}

void expectSoundText(const std::string& key, const std::string& text, bool mayBeAnything) {
    // A page of bytes is all that an attribute has, and a mended one may be three times as long.
    EXPECT_LE(text.size(), 3U * 4096) << key;
    if (mayBeAnything) return;
    const bool hasControls = std::any_of(text.begin(), text.end(), [](unsigned char letter) {
        return letter < 0x20 || letter == 0x7F;
    });
    EXPECT_FALSE(hasControls) << key << ": " << text;
}

/// What holds for any figure, whatever it tells.
void expectSound(const std::string& key, const json& value, bool mayBeAnything) {
    static const std::set<std::string> fractions{"totalUsage", "userUsage",    "systemUsage",
                                                 "idleUsage",  "perCoreUsage", "chargeFraction",
                                                 "utilization"};
    // A program may give itself any name, a volume may lie under any, and a battery's is what its
    // maker wrote into it.
    mayBeAnything = mayBeAnything || key == "processes" || key == "volumes" || key == "power";
    if (value.is_object()) {
        for (const auto& [name, part] : value.items())
            expectSound(name, part, mayBeAnything);
    } else if (value.is_array()) {
        for (const json& part : value)
            expectSound(key, part, mayBeAnything);
    } else if (value.is_string()) {
        EXPECT_NE(value, "not finite");
        expectSoundText(key, value, mayBeAnything);
    } else if (value.is_number()) {
        EXPECT_GE(value.get<double>(), 0) << key;
        if (fractions.contains(key)) {
            EXPECT_LE(value.get<double>(), 1) << key;
        }
    }
}

void expectSound(const json& document) {
    expectSound("", document, false);
    if (const json& memory = document["memory"]; !memory.is_null()) {
        EXPECT_EQ(memory["usedBytes"].get<std::uint64_t>() +
                      memory["availableBytes"].get<std::uint64_t>(),
                  memory["totalBytes"].get<std::uint64_t>());
    }
    for (const json& volume : document["volumes"])
        EXPECT_LE(volume["availableBytes"], volume["totalBytes"]) << volume;
    for (const json& process : document["processes"]["all"])
        EXPECT_LE(process["cpuPercent"], 128 * 100) << process;
}

/// No figure that can only come from a file is there.
void expectNothingKnown(const json& document) {
    EXPECT_TRUE(document["cpu"].is_null()) << document["cpu"];
    EXPECT_TRUE(document["memory"].is_null()) << document["memory"];
    EXPECT_TRUE(document["processes"]["all"].empty()) << document["processes"];
    EXPECT_FALSE(document["power"].is_object()) << document["power"];
    EXPECT_TRUE(document["volumes"].empty()) << document["volumes"];
    EXPECT_EQ(document["system"]["thermalState"], "Unknown");
    EXPECT_EQ(document["system"]["lowPowerModeEnabled"], false);
    EXPECT_EQ(document["system"]["hardwareModel"], "Unknown Computer");
}

std::string asTestName(std::string name) {
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
}

using Case = std::tuple<std::string, Damage>;

class DamagedMachine : public testing::TestWithParam<Case> {
  protected:
    const std::string& name() const { return std::get<0>(GetParam()); }
    Damage damage() const { return std::get<1>(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Of, DamagedMachine,
                         testing::Combine(testing::ValuesIn(RecordedTree::names()),
                                          testing::ValuesIn(damages)),
                         [](const auto& test) {
                             return asTestName(std::get<0>(test.param) + "_" +
                                               nameOf(std::get<1>(test.param)));
                         });

TEST_P(DamagedMachine, InventsNothingWhenEveryFileIsDamaged) {
    const auto machine = std::make_shared<RecordedMachine>(name());
    MachineWitness witness(machine, true);
    inflict(damage(), machine->tree());
    expectSound(witness.ask());
    machine->wind(1);
    const json second = witness.ask();
    expectSound(second);
    // Half a file may still hold a whole line that says it all, and a huge one holds all of them.
    if (damage() != Damage::halved && damage() != Damage::huge) expectNothingKnown(second);
}

TEST_P(DamagedMachine, InventsNothingWhenEveryFileIsDamagedWhileItRuns) {
    const auto machine = std::make_shared<RecordedMachine>(name());
    MachineWitness witness(machine, true);
    witness.ask();
    machine->advance(1);
    inflict(damage(), machine->tree());
    expectSound(witness.ask());
    machine->wind(60);  // what was remembered is looked up again
    expectSound(witness.ask());
}

TEST_P(DamagedMachine, InventsNothingWhenOneFileIsDamaged) {
    const auto tree = std::make_shared<const RecordedTree>(name());
    for (const fs::path& path : tree->files()) {
        SCOPED_TRACE(path.string());
        const std::string content = readRecordedFile(path);
        inflict(damage(), path);
        const auto machine = std::make_shared<RecordedMachine>(tree);
        MachineWitness witness(machine, true);
        witness.ask();
        machine->wind(1);
        expectSound(witness.ask());
        fs::remove(path);
        writeInPlace(path, content);
        if (HasFailure()) break;
    }
}

const json* findVolume(const json& document, const json& path) {
    for (const json& volume : document["volumes"]) {
        if (volume["path"] == path) return &volume;
    }
    return nullptr;
}

class CutMachine : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Of, CutMachine, testing::ValuesIn(RecordedTree::names()),
                         [](const auto& test) { return asTestName(test.param); });

TEST_P(CutMachine, SaysOfAVolumeWhatIsTrueOrNothing) {
    constexpr std::size_t cuts = 150;
    const auto tree = std::make_shared<const RecordedTree>(GetParam());
    const fs::path path = tree->roots().proc / "self/mountinfo";
    const std::string table = readRecordedFile(path);
    const json whole = MachineWitness(std::make_shared<RecordedMachine>(tree), true).ask();
    for (std::size_t cut = 0; cut < cuts && !HasFailure(); ++cut) {
        const std::string front = table.substr(0, table.size() * cut / cuts);
        SCOPED_TRACE(front.substr(front.rfind('\n') + 1));
        writeInPlace(path, front);
        const json said = MachineWitness(std::make_shared<RecordedMachine>(tree), true).ask();
        for (const json& volume : said["volumes"]) {
            const json* const known = findVolume(whole, volume["path"]);
            EXPECT_EQ(volume, known ? *known : json(nullptr));
        }
    }
}

class SpeechlessMachine : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Of, SpeechlessMachine, testing::ValuesIn(RecordedTree::names()),
                         [](const auto& test) { return asTestName(test.param); });

TEST_P(SpeechlessMachine, LosesOnlyWhatSystemCallsTell) {
    const auto tree = std::make_shared<const RecordedTree>(GetParam());
    const auto machine = std::make_shared<RecordedMachine>(tree);
    MachineWitness witness(machine, true);
    witness.ask();
    machine->advance(1);
    fs::remove_all(tree->calls());
    json document = witness.ask();
    EXPECT_TRUE(document["network"].is_null()) << document["network"];
    EXPECT_TRUE(document["volumes"].empty()) << document["volumes"];
    const json golden =
        json::parse(readRecordedFile(RecordedTree::recording(GetParam()) / "golden.json"));
    for (const char* provider : {"cpu", "memory", "power", "processes", "system"})
        EXPECT_EQ(document[provider], golden[provider]) << provider;
}

}  // namespace
}  // namespace vantor::damaged_machines_test
