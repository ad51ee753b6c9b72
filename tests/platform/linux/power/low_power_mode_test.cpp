#include "platform/linux/power/low_power_mode.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::low_power_mode_test {
namespace {

struct Row {
    const char* name;
    const char* choices;
    const char* profile;
    const char* preference;
    bool isEnabled;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class LowPowerModeOf : public testing::TestWithParam<Row> {};

constexpr auto withLowPower = "low-power quiet balanced performance\n";
constexpr auto withoutLowPower = "quiet balanced performance\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, LowPowerModeOf,
    testing::Values(Row{"NoFiles", nullptr, nullptr, nullptr, false},
                    Row{"LowPower", withLowPower, "low-power\n", nullptr, true},
                    Row{"Balanced", withLowPower, "balanced\n", nullptr, false},
                    Row{"Custom", withLowPower, "custom\n", nullptr, false},
                    Row{"QuietBesideLowPower", withLowPower, "quiet\n", nullptr, false},
                    Row{"QuietAsTheLowest", withoutLowPower, "quiet\n", nullptr, true},
                    Row{"BalancedAboveQuiet", withoutLowPower, "balanced\n", nullptr, false},
                    Row{"QuietOfUnknownChoices", nullptr, "quiet\n", nullptr, false},
                    Row{"LowPowerOfUnknownChoices", nullptr, "low-power\n", nullptr, true},
                    Row{"EmptyProfile", withLowPower, "", nullptr, false},
                    Row{"PreferencePower", nullptr, nullptr, "power\n", true},
                    Row{"PreferenceBalancePower", nullptr, nullptr, "balance_power\n", false},
                    Row{"PreferencePerformance", nullptr, nullptr, "performance\n", false},
                    Row{"PreferenceNumber", nullptr, nullptr, "128\n", false},
                    Row{"PreferenceEmpty", nullptr, nullptr, "", false},
                    Row{"EitherIsEnough", withLowPower, "balanced\n", "power\n", true},
                    Row{"Neither", withLowPower, "balanced\n", "default\n", false}),
    [](const auto& row) { return std::string(row.param.name); });

constexpr auto profileFile = "firmware/acpi/platform_profile";
constexpr auto preferenceFile = "devices/system/cpu/cpufreq/policy0/energy_performance_preference";

TEST_P(LowPowerModeOf, IsAsTheFilesSay) {
    const FakeKernelTree tree;
    const auto& [name, choices, profile, preference, isEnabled] = GetParam();
    if (choices) tree.sys("firmware/acpi/platform_profile_choices", choices);
    if (profile) tree.sys(profileFile, profile);
    if (preference) tree.sys(preferenceFile, preference);
    EXPECT_EQ(LowPowerMode(tree.roots()).isEnabled(0), isEnabled);
}

class LowPowerModeTest : public testing::Test {
  protected:
    FakeKernelTree tree;
    LowPowerMode mode{tree.roots()};
};

TEST_F(LowPowerModeTest, IsReadEachTime) {
    tree.sys(profileFile, "balanced\n");
    EXPECT_FALSE(mode.isEnabled(0));
    tree.sys(profileFile, "low-power\n");
    EXPECT_TRUE(mode.isEnabled(1));
    tree.sys(profileFile, "performance\n");
    EXPECT_FALSE(mode.isEnabled(2));
}

TEST_F(LowPowerModeTest, FilesAreSoughtOnceAMinute) {
    EXPECT_FALSE(mode.isEnabled(500));
    tree.sys(preferenceFile, "power\n");
    EXPECT_FALSE(mode.isEnabled(559.9));
    EXPECT_TRUE(mode.isEnabled(560));
}

TEST_F(LowPowerModeTest, TheFirstPolicyIsTheOneWithTheLowestNumber) {
    const std::string folder = "devices/system/cpu/cpufreq/";
    for (const char* other : {"policy10", "policy4", "policyX", "policy", "boost"})
        tree.sys(folder + other + "/energy_performance_preference", "balance_power\n");
    EXPECT_FALSE(mode.isEnabled(0));
    tree.sys(folder + "policy4/energy_performance_preference", "power\n");
    EXPECT_TRUE(mode.isEnabled(1));
    tree.sys(folder + "policy4/energy_performance_preference", "balance_power\n");
    tree.sys(folder + "policy10/energy_performance_preference", "power\n");
    EXPECT_FALSE(mode.isEnabled(2));
}

TEST(LowPowerMode, FindsTheLowestProfile) {
    EXPECT_TRUE(isQuietTheLowestOf("quiet"));
    EXPECT_TRUE(isQuietTheLowestOf("cool quiet balanced\n"));
    EXPECT_FALSE(isQuietTheLowestOf("quiet low-power"));
    EXPECT_FALSE(isQuietTheLowestOf("quieter balanced"));
    EXPECT_FALSE(isQuietTheLowestOf(""));
    EXPECT_FALSE(isQuietTheLowestOf(" \n"));
}

}  // namespace
}  // namespace vantor::low_power_mode_test
