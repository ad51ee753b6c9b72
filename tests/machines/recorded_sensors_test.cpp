#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/failing_read.h"
#include "support/line_difference.h"
#include "support/recorded_machine.h"
#include "support/silent_pipe.h"

#include "machines/machine_document.h"

/// The temperatures that whole machines tell when sensors of theirs fail, or have other numbers.
namespace vantor::recorded_sensors_test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

using Temperatures = std::map<std::string, double>;

/// Those of a document, by the names of what they are of.
Temperatures temperaturesOf(const json& document) {
    Temperatures found;
    const auto note = [&found](const std::string& name, const json& record) {
        if (record.contains("temperatureCelsius")) found[name] = record["temperatureCelsius"];
    };
    note("cpu", document["cpu"]);
    for (const json& gpu : document["gpus"])
        note(gpu["id"], gpu);
    return found;
}

/// The folders of all monitors below the devices, by their names.
std::map<std::string, fs::path> monitorsOf(const RecordedTree& tree) {
    std::map<std::string, fs::path> monitors;
    for (const auto& entry : fs::recursive_directory_iterator(tree.roots().sys / "devices")) {
        const std::string name = entry.path().filename();
        if (entry.is_symlink() || !entry.is_directory()) continue;
        if (name.starts_with("hwmon") && name != "hwmon") monitors[name] = entry.path();
    }
    return monitors;
}

/// Gives each monitor the number of another one, or of none, as the next boot may.
void renumberMonitors(const RecordedTree& tree) {
    const auto monitors = monitorsOf(tree);
    std::vector<std::string> names;
    for (const auto& [name, folder] : monitors)
        names.push_back(name);
    // The first one's is new, for a single monitor would keep its own otherwise.
    names.insert(names.begin(), "hwmon19");
    const fs::path list = tree.roots().sys / "class/hwmon";
    std::set<std::string> listed;
    for (const auto& [name, folder] : monitors) {
        if (fs::remove(list / name)) listed.insert(name);
        fs::rename(folder, folder.parent_path() / ("renamed-" + name));
    }
    auto next = names.begin();
    for (const auto& [name, folder] : monitors) {
        const fs::path renamed = folder.parent_path() / *next;
        fs::rename(folder.parent_path() / ("renamed-" + name), renamed);
        if (listed.contains(name)) fs::create_directory_symlink(renamed, list / *next);
        ++next;
    }
}

/// A machine at and after its second pass, started after its sensors have been arranged.
class Running {
  public:
    explicit Running(std::shared_ptr<const RecordedTree> tree)
        : machine_(std::make_shared<RecordedMachine>(std::move(tree))), witness_(machine_, false) {
        witness_.ask();
    }

    Temperatures temperatures() {
        machine_->work(1);
        return temperaturesOf(witness_.ask());
    }

  private:
    std::shared_ptr<RecordedMachine> machine_;
    MachineWitness witness_;
};

std::shared_ptr<const RecordedTree> secondPassOf(const std::string& name) {
    auto tree = std::make_shared<const RecordedTree>(name);
    tree->applySecondPass();
    return tree;
}

std::string testNameOf(const testing::TestParamInfo<std::string>& machine) {
    std::string name = machine.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
}

class RecordedSensors : public testing::TestWithParam<std::string> {
  protected:
    static json agreed() {
        return json::parse(readRecordedFile(RecordedTree::recording(GetParam()) / "golden.json"));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, RecordedSensors, testing::ValuesIn(RecordedTree::names()), testNameOf);

/// Monitors' numbers change from boot to boot.
TEST_P(RecordedSensors, MayHaveOtherNumbers) {
    const auto tree = secondPassOf(GetParam());
    const Temperatures expected = Running(tree).temperatures();
    renumberMonitors(*tree);
    EXPECT_EQ(Running(tree).temperatures(), expected);
}

/// Each one by itself: all that may change is a temperature.
TEST_P(RecordedSensors, ThatFailHideNothingElse) {
    json expected = agreed();
    expected.erase("networkWithTunnels");
    const Temperatures agreedOnes = temperaturesOf(expected);
    const auto strip = [](json document) {
        if (document["cpu"].is_object()) document["cpu"].erase("temperatureCelsius");
        for (json& gpu : document["gpus"])
            gpu.erase("temperatureCelsius");
        return document;
    };
    const auto list = std::make_shared<const RecordedTree>(GetParam());
    for (const auto& [name, folder] : monitorsOf(*list)) {
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string file = entry.path().filename();
            if (!file.starts_with("temp") || !file.ends_with("_input")) continue;
            SCOPED_TRACE(entry.path().string());
            const auto tree = std::make_shared<const RecordedTree>(GetParam());
            const FailingRead failing(
                tree->roots().sys / entry.path().lexically_relative(list->roots().sys), EAGAIN);
            const auto machine = std::make_shared<RecordedMachine>(tree);
            MachineWitness witness(machine, false);
            witness.ask();
            machine->advance(1);
            const json said = witness.ask();
            EXPECT_EQ(strip(said), strip(expected))
                << lineDifference(written(strip(expected)), written(strip(said)));
            int gone = 0;
            for (const auto& [of, celsius] : agreedOnes)
                if (!temperaturesOf(said).contains(of)) ++gone;
            EXPECT_LE(gone, 1);
        }
    }
}

/// The laptop with two cards at its second pass, when both are awake.
class HybridLaptop : public testing::Test {
  protected:
    static constexpr const char* dedicated = "768";
    static constexpr const char* shared = "1792";

    fs::path input(const char* monitor, int number) const {
        return monitors.at(monitor) / ("temp" + std::to_string(number) + "_input");
    }

    std::shared_ptr<const RecordedTree> tree = secondPassOf("hybrid-laptop");
    std::map<std::string, fs::path> monitors = monitorsOf(*tree);
    const Temperatures all{{"cpu", 66.125}, {dedicated, 61}, {shared, 57}};
};

TEST_F(HybridLaptop, TellsThreeTemperatures) {
    EXPECT_EQ(Running(tree).temperatures(), all);
}

TEST_F(HybridLaptop, WhoseSensorAnswersLaterLacksItForAsLong) {
    Running laptop(tree);
    {
        const FailingRead processor(input("hwmon2", 1), EAGAIN);
        EXPECT_EQ(laptop.temperatures(), (Temperatures{{dedicated, 61}, {shared, 57}}));
        const FailingRead card(input("hwmon6", 1), EAGAIN);
        EXPECT_EQ(laptop.temperatures(), (Temperatures{{dedicated, 61}}));
    }
    EXPECT_EQ(laptop.temperatures(), all);
}

TEST_F(HybridLaptop, WhoseCardsEdgeFailsTellsItsJunction) {
    Running laptop(tree);
    {
        const FailingRead edge(input("hwmon5", 1), EIO);
        EXPECT_EQ(laptop.temperatures(),
                  (Temperatures{{"cpu", 66.125}, {dedicated, 74}, {shared, 57}}));
        const FailingRead junction(input("hwmon5", 2), EIO);
        EXPECT_EQ(laptop.temperatures(), (Temperatures{{"cpu", 66.125}, {shared, 57}}));
    }
    EXPECT_EQ(laptop.temperatures(), all);
}

TEST_F(HybridLaptop, WhoseSensorIsAFolderTellsTheOthers) {
    for (const char* const monitor : {"hwmon2", "hwmon5"}) {
        fs::remove(input(monitor, 1));
        fs::create_directory(input(monitor, 1));
    }
    EXPECT_EQ(Running(tree).temperatures(), (Temperatures{{dedicated, 74}, {shared, 57}}));
}

TEST_F(HybridLaptop, WhoseSensorsAreSilentIsNotWaitedFor) {
    const SilentPipe processor(input("hwmon2", 1));
    const SilentPipe edge(input("hwmon5", 1));
    const SilentPipe label(monitors.at("hwmon6") / "temp1_label");
    EXPECT_EQ(Running(tree).temperatures(), (Temperatures{{dedicated, 74}}));
}

TEST(LaptopWithAProcessorsZone, TellsItWhenThePackageFails) {
    const auto tree = secondPassOf("laptop-two-batteries");
    std::ofstream(tree->roots().sys / "class/thermal/thermal_zone2/temp") << "63000\n";
    Running laptop(tree);
    EXPECT_EQ(laptop.temperatures(), (Temperatures{{"cpu", 64}}));
    {
        const FailingRead package(monitorsOf(*tree).at("hwmon4") / "temp1_input", EAGAIN);
        EXPECT_EQ(laptop.temperatures(), (Temperatures{{"cpu", 63}})) << "x86_pkg_temp";
    }
    EXPECT_EQ(laptop.temperatures(), (Temperatures{{"cpu", 64}}));
}

}  // namespace
}  // namespace vantor::recorded_sensors_test
