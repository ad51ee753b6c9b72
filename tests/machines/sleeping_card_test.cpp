#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "support/opened_files.h"
#include "support/recorded_machine.h"

#include "machines/machine_document.h"

/// What a whole machine asks of a sleeping graphics card, through any of its platform calls.
namespace vantor::sleeping_card_test {
namespace {

using testing::ElementsAre;
using testing::IsSupersetOf;

class SleepingCardOfAMachine : public testing::Test {
  protected:
    void sleep(const std::string& state) const {
        std::ofstream(card / "power/runtime_status") << state << '\n';
    }
    /// Long enough for everything that is listed again at times, and not idle: idle processors have
    /// no record, their temperature included.
    void live(RecordedMachine& running, MachineWitness& witness) {
        for (int i = 0; i < 30; ++i) {
            witness.ask();
            running.work(7);
        }
    }

    std::shared_ptr<const RecordedTree> tree = std::make_shared<RecordedTree>("hybrid-laptop");
    std::filesystem::path card =
        tree->roots().sys /
        "devices/pci0000:00/0000:00:01.1/0000:01:00.0/0000:02:00.0/0000:03:00.0";
};

TEST_F(SleepingCardOfAMachine, IsAskedForItsPowerStateAndNothingElse) {
    for (const char* const state : {"suspended", "suspending", "resuming", "error"}) {
        sleep(state);
        OpenedFiles opened(card);
        const auto machine = std::make_shared<RecordedMachine>(tree);
        MachineWitness witness(machine, true);
        live(*machine, witness);
        EXPECT_THAT(opened.take(), ElementsAre("power/runtime_status")) << state;
    }
}

TEST_F(SleepingCardOfAMachine, IsAskedForNothingElseWhenItHasFallenAsleep) {
    const auto machine = std::make_shared<RecordedMachine>(tree);
    MachineWitness witness(machine, true);
    machine->advance(1);
    OpenedFiles opened(card);
    live(*machine, witness);
    EXPECT_THAT(opened.take(), IsSupersetOf({"power/runtime_status", "vendor", "gpu_busy_percent",
                                             "hwmon/hwmon5/temp1_input"}))
        << "awake";
    sleep("suspended");
    witness.ask();
    opened.take();
    live(*machine, witness);
    EXPECT_THAT(opened.take(), ElementsAre("power/runtime_status"));
}

TEST_F(SleepingCardOfAMachine, HasNoFileOpenButItsPowerState) {
    const auto machine = std::make_shared<RecordedMachine>(tree);
    MachineWitness witness(machine, true);
    machine->advance(1);
    witness.ask();
    const auto countOpen = [this] {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            const auto target = std::filesystem::read_symlink(entry.path(), gone);
            if (!gone && target.native().starts_with(card.native() + "/")) ++count;
        }
        return count;
    };
    EXPECT_GT(countOpen(), 3);
    sleep("suspended");
    witness.ask();
    EXPECT_EQ(countOpen(), 1);
}

}  // namespace
}  // namespace vantor::sleeping_card_test
