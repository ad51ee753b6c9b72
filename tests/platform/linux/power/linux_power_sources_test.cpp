#include "platform/linux/power/linux_power_sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/linux/linux_machine.h"
#include "probes/power_reader.h"
#include "support/fake_kernel_tree.h"

namespace vantor::linux_power_sources_test {
namespace {

using testing::AnyOf;

class LinuxPowerSourcesTest : public testing::Test {
  protected:
    using Files = std::vector<std::pair<std::string, std::string>>;

    /// Like the kernel, it keeps the folder elsewhere.
    void supply(const std::string& name, const Files& files) {
        const std::string folder = "devices/platform/power/" + name + "/";
        for (const auto& [file, text] : files)
            tree.sys(folder + file, text + "\n");
        tree.link("class/power_supply/" + name, "../../" + folder);
    }
    void pullOut(const std::string& name) { tree.removeSys("devices/platform/power/" + name); }
    void makeUnreadable(const std::string& name, const std::string& file) {
        const auto path = tree.roots().sys / "devices/platform/power" / name / file;
        std::filesystem::remove(path);
        std::filesystem::create_directory(path);
    }

    PowerReadResult read() { return PowerReader(machine).read(); }

    /// "none", "failure" or the charge in percent.
    std::string answer() {
        const auto result = read();
        if (!result.isUpdate()) return "failure";
        if (!result.stats()) return "none";
        return std::to_string(static_cast<int>(result.stats()->chargeFraction * 100 + 0.5));
    }

    const Files thinkpad{{"type", "Battery"},          {"present", "1"},
                         {"status", "Discharging"},    {"energy_now", "40000000"},
                         {"energy_full", "50000000"},  {"power_now", "10000000"},
                         {"cycle_count", "321"},       {"model_name", "45N1127 "},
                         {"energy_full_design", "60"}, {"voltage_now", "11000000"}};

    FakeKernelTree tree;
    std::shared_ptr<Machine> machine =
        std::make_shared<LinuxMachine>(tree.roots(), LinuxCalls::live());
};

TEST_F(LinuxPowerSourcesTest, ALaptopOnItsBattery) {
    supply("AC", {{"type", "Mains"}, {"online", "0"}});
    supply("BAT0", thinkpad);
    EXPECT_EQ(read(), PowerReadResult::update(PowerStats{"45N1127", 0.8, false, false, 240, 321}));
}

TEST_F(LinuxPowerSourcesTest, ALaptopThatIsCharging) {
    supply("AC", {{"type", "Mains"}, {"online", "1"}});
    supply("BAT0", thinkpad);
    supply("BAT0", {{"status", "Charging"}});
    EXPECT_EQ(read(), PowerReadResult::update(PowerStats{"45N1127", 0.8, true, true, 60, 321}));
}

TEST_F(LinuxPowerSourcesTest, APhoneThatCountsCharge) {
    supply("battery", {{"type", "Battery"},
                       {"status", "Discharging"},
                       {"charge_now", "1500000"},
                       {"charge_full", "3000000"},
                       {"current_now", "-500000"},
                       {"capacity", "49"}});
    supply("usb", {{"type", "USB"}, {"online", "0"}});
    EXPECT_EQ(read(),
              PowerReadResult::update(PowerStats{"battery", 0.5, false, false, 180, std::nullopt}));
}

TEST_F(LinuxPowerSourcesTest, ABatteryThatSaysPercentOnly) {
    supply("BAT0", {{"type", "Battery"}, {"status", "Full"}, {"capacity", "100"}});
    EXPECT_EQ(read(), PowerReadResult::update(
                          PowerStats{"BAT0", 1.0, false, true, std::nullopt, std::nullopt}));
}

TEST_F(LinuxPowerSourcesTest, TwoBatteriesInTheOrderOfTheirNames) {
    supply("BAT1", thinkpad);
    supply("BAT1", {{"energy_now", "10000000"}, {"model_name", "Outer"}});
    supply("BAT0", thinkpad);
    EXPECT_EQ(read(),
              PowerReadResult::update(PowerStats{"45N1127 + Outer", 0.5, false, false, 150, 321}));
}

TEST_F(LinuxPowerSourcesTest, OneOfTwoBatteriesThatSaysNothing) {
    supply("BAT0", {{"type", "Battery"}, {"status", "Discharging"}, {"capacity", "64"}});
    supply("BAT1", {{"type", "Battery"}, {"present", "1"}, {"status", "Unknown"}});
    EXPECT_EQ(answer(), "64");
}

TEST_F(LinuxPowerSourcesTest, ABatteryWhoseFullEnergyIsZeroSaysPercent) {
    supply("BAT0", {{"type", "Battery"},
                    {"status", "Discharging"},
                    {"energy_now", "0"},
                    {"energy_full", "0"},
                    {"capacity", "64"}});
    EXPECT_EQ(answer(), "64");
}

TEST_F(LinuxPowerSourcesTest, ABatteryWhoseFullChargeIsZeroSaysPercent) {
    supply("BAT0", {{"type", "Battery"},
                    {"status", "Discharging"},
                    {"charge_now", "0"},
                    {"charge_full", "0"},
                    {"capacity", "64"}});
    EXPECT_EQ(answer(), "64");
}

TEST_F(LinuxPowerSourcesTest, AMachineWithoutTheFolderHasNoPowerSource) {
    EXPECT_EQ(answer(), "none");
}

TEST_F(LinuxPowerSourcesTest, AMachineWithAnEmptyFolderHasNoPowerSource) {
    supply("BAT0", thinkpad);
    tree.removeSys("class/power_supply/BAT0");
    EXPECT_EQ(answer(), "none");
}

TEST_F(LinuxPowerSourcesTest, AFolderThatCannotBeListedIsAFailure) {
    tree.sys("class/power_supply", "this is no folder");
    EXPECT_EQ(LinuxPowerSources(tree.roots()).copyInfo(), nullptr);
    EXPECT_EQ(answer(), "failure");
}

TEST_F(LinuxPowerSourcesTest, AMouseIsNotABattery) {
    supply(
        "hidpp_battery_0",
        {{"type", "Battery"}, {"scope", "Device"}, {"status", "Discharging"}, {"capacity", "5"}});
    EXPECT_EQ(answer(), "none");
    supply("BAT0", thinkpad);
    EXPECT_EQ(answer(), "80");
}

TEST_F(LinuxPowerSourcesTest, AnEmptyBayIsNotABattery) {
    supply("BAT0", {{"type", "Battery"}, {"present", "0"}});
    EXPECT_EQ(answer(), "none");
}

TEST_F(LinuxPowerSourcesTest, AUPSAloneIsThePowerSource) {
    supply("ups", {{"type", "UPS"}, {"status", "Discharging"}, {"capacity", "60"}});
    EXPECT_EQ(read(), PowerReadResult::update(
                          PowerStats{"ups", 0.6, false, false, std::nullopt, std::nullopt}));
}

TEST_F(LinuxPowerSourcesTest, ABatteryThatWasPulledOutIsNotThere) {
    supply("BAT0", thinkpad);
    supply("AC", {{"type", "Mains"}, {"online", "1"}});
    ASSERT_EQ(answer(), "80");
    pullOut("BAT0");  // its name is still in the listing
    EXPECT_EQ(answer(), "none");
}

TEST_F(LinuxPowerSourcesTest, OneOfTwoBatteriesPulledOutLeavesTheOther) {
    supply("BAT0", thinkpad);
    supply("BAT1", thinkpad);
    pullOut("BAT0");
    EXPECT_EQ(answer(), "80");
}

// The kernel takes the files away one by one, and the folder last.
TEST_F(LinuxPowerSourcesTest, ABatteryThatIsBeingPulledOutIsRightOrNotThere) {
    for (std::size_t first = 0; first < thinkpad.size(); ++first) {
        supply("BAT0", thinkpad);
        ASSERT_EQ(answer(), "80");
        for (std::size_t i = 0; i < thinkpad.size(); ++i) {
            tree.removeSys("devices/platform/power/BAT0/" +
                           thinkpad[(first + i) % thinkpad.size()].first);
            EXPECT_THAT(answer(), AnyOf("80", "none", "failure")) << first << " to " << i;
        }
        pullOut("BAT0");
        EXPECT_EQ(answer(), "none");
    }
}

TEST_F(LinuxPowerSourcesTest, BatteriesPulledOutAndPutInWhileTheyAreReadAreRightOrNotThere) {
    supply("AC", {{"type", "Mains"}, {"online", "0"}});
    supply("BAT1", thinkpad);
    std::atomic<bool> isOver = false;
    std::thread hand([&] {
        while (!isOver) {
            supply("BAT0", thinkpad);
            pullOut("BAT0");
        }
    });
    std::map<std::string, int> answers;
    for (int i = 0; i < 500; ++i)
        ++answers[answer()];
    isOver = true;
    hand.join();
    for (const auto& [answer, count] : answers)
        EXPECT_THAT(answer, AnyOf("80", "failure")) << count << " times: BAT1 was never away";
    EXPECT_GT(answers["80"], 0);
    EXPECT_EQ(answer(), "80");
}

TEST_F(LinuxPowerSourcesTest, FilesWithoutAnEndAreReadAPageAtMost) {
    for (const auto& [file, text] : thinkpad) {
        if (file == "energy_full_design" || file == "voltage_now") continue;  // not needed
        SCOPED_TRACE(file);
        supply("BAT0", thinkpad);
        supply("BAT0", {{file, std::string(std::size_t{1} << 20, '7')}});
        const auto result = read();
        if (!result.isUpdate() || !result.stats()) continue;
        EXPECT_DOUBLE_EQ(result.stats()->chargeFraction, 0.8);
        EXPECT_LE(result.stats()->name.size(), 4096U);
        EXPECT_LE(result.stats()->timeRemainingMinutes.value_or(0), 6000);
    }
}

TEST_F(LinuxPowerSourcesTest, AFolderWithoutATypeIsOneThatIsGoing) {
    supply("BAT0", {{"capacity", "50"}});
    EXPECT_EQ(answer(), "none");
}

TEST_F(LinuxPowerSourcesTest, ATypeThatCannotBeReadIsAFailure) {
    supply("BAT0", thinkpad);
    makeUnreadable("BAT0", "type");
    EXPECT_EQ(answer(), "failure");
}

TEST_F(LinuxPowerSourcesTest, ABatteryThatIsThereButCannotBeReadIsAFailure) {
    supply("BAT0", thinkpad);
    makeUnreadable("BAT0", "energy_now");
    EXPECT_EQ(answer(), "failure");
    supply("BAT1", {{"type", "Battery"}, {"status", "Discharging"}});
    EXPECT_EQ(answer(), "failure");
}

TEST_F(LinuxPowerSourcesTest, AFullCapacityOfZeroIsAFailure) {
    supply("BAT0", thinkpad);
    supply("BAT0", {{"energy_full", "0"}});
    EXPECT_EQ(answer(), "failure");
}

TEST_F(LinuxPowerSourcesTest, OtherEntriesOfTheFolderDoNotMatter) {
    supply("BAT0", thinkpad);
    tree.sys("class/power_supply/uevent", "");
    EXPECT_EQ(answer(), "80");
}

}  // namespace
}  // namespace vantor::linux_power_sources_test
