#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/power/only_power_source.h"
#include "platform/linux/power/power_supply.h"

/// Batteries that are there and say nothing of how full they are, as worn-out ones do.
namespace vantor::silent_battery_test {
namespace {

using Supplies = std::vector<PowerSupplyTexts>;

PowerSupplyTexts wornOut(const char* folder, const char* status) {
    PowerSupplyTexts texts;
    texts.folder = folder;
    texts.type = "Battery";
    texts.status = status;
    return texts;
}

PowerSupplyTexts battery(const char* folder, const char* status) {
    PowerSupplyTexts texts = wornOut(folder, status);
    texts.energyNow = "40000000";
    texts.energyFull = "50000000";
    texts.powerNow = "10000000";
    return texts;
}

TEST(SilentBatteries, DoNotHideTheOthers) {
    const auto good = [] {
        PowerSupplyTexts texts = battery("BAT0", "Discharging");
        texts.timeToEmpty = "7260";
        return texts;
    }();
    const auto worn = wornOut("BAT1", "Unknown");
    for (const Supplies& both : {Supplies{good, worn}, Supplies{worn, good}}) {
        const auto description = describeOnlySource(both);
        EXPECT_EQ(textIn(description, "Name"), "BAT0");
        EXPECT_EQ(findInteger(description, "Current Capacity"), 40000000);
        EXPECT_EQ(findInteger(description, "Max Capacity"), 50000000);
        EXPECT_EQ(findInteger(description, "Time to Empty"), 121) << "as if it were alone";
    }
}

TEST(SilentBatteries, SayWhetherTheyFeedTheMachine) {
    const auto description =
        describeOnlySource({battery("BAT0", "Full"), wornOut("BAT1", "Discharging")});
    EXPECT_EQ(textIn(description, "Power Source State"), "Battery Power");
}

TEST(SilentBatteries, AloneAreOneSourceWithoutCapacities) {
    const auto description =
        describeOnlySource({wornOut("BAT0", "Full"), wornOut("BAT1", "Unknown")});
    EXPECT_EQ(textIn(description, "Type"), "InternalBattery");
    EXPECT_EQ(textIn(description, "Name"), "BAT0 + BAT1");
    EXPECT_EQ(find(description, "Current Capacity"), nullptr);
}

}  // namespace
}  // namespace vantor::silent_battery_test
