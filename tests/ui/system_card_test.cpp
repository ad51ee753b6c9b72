#include "ui/cards/system_card.h"

#include <gtest/gtest.h>

#include "platform/simulated/simulated_machine.h"
#include "ui/card_samples.h"
#include "ui/rendering.h"

namespace vantor::system_card_test {
namespace {

std::string text(const MetricRow& row) {
    return utf8(row.label + u'=' + row.value);
}

class SystemCardTest : public testing::Test {
  protected:
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    DashboardState state = stateWithEverything();

    PowerBlock power() { return PowerBlock::of(*state.snapshot.power, machine->processInfo()); }
};

TEST_F(SystemCardTest, RowsStandInTheirOrder) {
    const SystemCard card = SystemCard::of(state);
    EXPECT_EQ(utf8(card.frame().title), "System");
    EXPECT_EQ(utf8(card.frame().icon), "desktopcomputer");
    EXPECT_EQ(card.frame().accent, VantorTheme::orange());
    EXPECT_EQ(utf8(card.frame().subtitle.value()), "SimBook1,1");
    const auto rows = card.rows();
    EXPECT_EQ(text(rows[0]), "Operating System=macOS 14.2.1");
    EXPECT_EQ(text(rows[1]), "Kernel Build=23A344");
    EXPECT_EQ(text(rows[2]), "Architecture=arm64");
    EXPECT_EQ(text(rows[3]), "Uptime=2d 2h 50m");
    EXPECT_EQ(text(rows[4]), "Thermal State=Nominal");
    EXPECT_EQ(text(rows[5]), "Low Power Mode=Disabled");
    state.snapshot.system.lowPowerModeEnabled = true;
    EXPECT_EQ(text(SystemCard::of(state).rows()[5]), "Low Power Mode=Enabled");
}

TEST_F(SystemCardTest, AbsentTextsAreUnknown) {
    state.snapshot.system = {};
    state.snapshot.system.uptimeSeconds = -1;
    const auto rows = SystemCard::of(state).rows();
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(utf8(rows[i].value), "Unknown") << utf8(rows[i].label);
}

TEST_F(SystemCardTest, ThermalStateHasItsColour) {
    const auto color = [](const char* name) {
        return SystemCard::thermalColor(name, ColorScheme::dark);
    };
    EXPECT_EQ(color("Nominal"), VantorTheme::green());
    EXPECT_EQ(color("Fair"), VantorTheme::orange());
    EXPECT_EQ(color("Serious"), VantorTheme::red());
    EXPECT_EQ(color("Critical"), VantorTheme::red());
    EXPECT_EQ(color("Unknown"), VantorTheme::secondaryLabel(ColorScheme::dark));
    SystemCardView view(machine->processInfo());
    state.snapshot.system.thermalState = "Fair";
    view.show(SystemCard::of(state));
    EXPECT_EQ(view.row(4).row().color, VantorTheme::orange());
}

TEST_F(SystemCardTest, AnUnknownThermalStateFollowsTheScheme) {
    SystemCardView view(machine->processInfo());
    state.snapshot.system.thermalState = "Unknown";
    for (const auto scheme : {ColorScheme::dark, ColorScheme::light}) {
        view.setPalette(paletteOf(scheme));
        settleEvents();
        view.show(SystemCard::of(state));
        EXPECT_EQ(view.row(4).row().color, VantorTheme::secondaryLabel(scheme));
    }
}

TEST_F(SystemCardTest, PowerSaysWhereItComesFrom) {
    EXPECT_EQ(utf8(power().text), "On battery");
    EXPECT_EQ(utf8(power().symbol), "battery.100percent");
    EXPECT_EQ(utf8(power().charge), "80%");
    EXPECT_EQ(utf8(power().help), "InternalBattery-0\n3h 20m remaining\n312 charge cycles");
    state.snapshot.power->isConnectedToAC = true;
    state.snapshot.power->isCharging = true;
    EXPECT_EQ(utf8(power().text), "AC connected");
    EXPECT_EQ(utf8(power().symbol), "battery.100percent.bolt");
    EXPECT_EQ(utf8(power().help), "InternalBattery-0\n3h 20m until full\n312 charge cycles");
}

TEST_F(SystemCardTest, OlderSystemsKnowOtherBatterySymbols) {
    machine->processInfo().version = {13, 6, 0};
    EXPECT_EQ(utf8(power().symbol), "battery.100");
    state.snapshot.power->isConnectedToAC = true;
    EXPECT_EQ(utf8(power().symbol), "battery.100.bolt");
}

TEST_F(SystemCardTest, ChargeIsOrangeAt39RedAt19AndGreenWithoutABattery) {
    const auto color = [this](double charge) {
        state.snapshot.power->chargeFraction = charge;
        return PowerBlock::chargeColor(state.snapshot.power);
    };
    EXPECT_EQ(color(0.39), VantorTheme::orange());
    EXPECT_EQ(color(0.19), VantorTheme::red());
    EXPECT_EQ(color(0.2), VantorTheme::orange());
    EXPECT_EQ(color(0.4), VantorTheme::green());
    EXPECT_EQ(PowerBlock::chargeColor(std::nullopt), VantorTheme::green());
}

TEST_F(SystemCardTest, ABatteryIsDrawnInTheColourOfItsCharge) {
    const auto drawn = [this](double charge) {
        state.snapshot.power->chargeFraction = charge;
        PowerView view;
        view.show(PowerBlock::of(*state.snapshot.power, machine->processInfo()));
        return rendered(view, {240, view.sizeHint().height()});
    };
    const QRectF symbol(8, 0, 30, 60);
    EXPECT_GT(pixelsLike(drawn(0.39), symbol, VantorTheme::orange()), 5);
    EXPECT_GT(pixelsLike(drawn(0.19), symbol, VantorTheme::red()), 5);
    EXPECT_GT(pixelsLike(drawn(0.8), symbol, VantorTheme::green()), 5);
}

TEST_F(SystemCardTest, ChargeIsRoundedToWholePercent) {
    state.snapshot.power->chargeFraction = 0.29;  // times a hundred it is a little less than 29
    EXPECT_EQ(utf8(power().charge), "29%");
}

TEST_F(SystemCardTest, WithoutAPowerRecordThereIsNoPowerRow) {
    SystemCardView view(machine->processInfo());
    EXPECT_TRUE(view.power().isHidden());
    view.show(SystemCard::of(state));
    EXPECT_FALSE(view.power().isHidden());
    state.snapshot.power.reset();
    ++state.revisions.system;
    view.show(SystemCard::of(state));
    EXPECT_TRUE(view.power().isHidden());
}

TEST_F(SystemCardTest, SaysNothingBeforeTheFirstReading) {
    const DashboardState none;
    for (const MetricRow& row : SystemCard::of(none).rows())
        EXPECT_EQ(utf8(row.value), "—");
    EXPECT_EQ(utf8(SystemCard::of(none).frame().subtitle.value()), "Waiting for system data");
}

}  // namespace
}  // namespace vantor::system_card_test
