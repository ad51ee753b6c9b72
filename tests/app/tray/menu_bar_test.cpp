#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>

#include "app/legacy_vantor_app.h"
#include "app/modern_vantor_app.h"
#include "app/tray/fake_status_bar.h"
#include "app/tray/menu_bar_fixture.h"
#include "platform/simulated/simulated_machine.h"
#include "support/event_patience.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"
#include "ui/rendering.h"
#include "ui/settings/settings_view.h"

namespace vantor::menu_bar_test {
namespace {

using namespace std::chrono_literals;

INSTANTIATE_TEST_SUITE_P(Variants, MenuBarOf, testing::Values(12, 14));

TEST_P(MenuBarOf, TheVariantIsChosenByTheSystemsVersion) {
    start();
    EXPECT_EQ(dynamic_cast<LegacyVantorApp*>(app.get()) != nullptr, GetParam() < 13);
    EXPECT_EQ(dynamic_cast<ModernVantorApp*>(app.get()) != nullptr, GetParam() >= 13);
}

TEST_P(MenuBarOf, TheItemIsThereWhileTheSettingIsOn) {
    start();
    EXPECT_EQ(tray->items(), 1);
    EXPECT_EQ(utf8(tray->content().title), "Vantor");
    EXPECT_EQ(utf8(tray->content().symbolName), "waveform.path.ecg");
    app->settings().setShowMenuBar(false);
    EXPECT_EQ(tray->items(), 0);
    app->settings().setShowMenuBar(true);
    EXPECT_EQ(tray->items(), 1);
}

TEST_P(MenuBarOf, TurnedOffWhileThePopoverIsOpenItClosesThePopoverAndRemovesTheItem) {
    start();
    press();
    ASSERT_TRUE(menuBar().popover()->isVisible());
    app->settings().setShowMenuBar(false);
    EXPECT_EQ(menuBar().popover(), nullptr);
    EXPECT_EQ(tray->items(), 0);
    EXPECT_FALSE(menuBar().hasStatusItem());
}

TEST_P(MenuBarOf, APressOpensThePopoverAndAnotherOneClosesIt) {
    start();
    press();
    ASSERT_NE(menuBar().popover(), nullptr);
    EXPECT_TRUE(menuBar().popover()->isVisible());
    press();
    EXPECT_FALSE(menuBar().popover()->isVisible());
}

TEST_P(MenuBarOf, PausingFromThePanelTurnsTheButtonAndTheHeaderFollows) {
    start();
    app->openDashboard();
    press();
    panel().pauseButton().click();
    EXPECT_EQ(utf8(panel().pauseButton().text()), "Resume");
    EXPECT_TRUE(app->dashboardWindow()->dashboard().header().status().isPaused());
    panel().pauseButton().click();
    EXPECT_EQ(utf8(panel().pauseButton().text()), "Pause");
    EXPECT_FALSE(app->dashboardWindow()->dashboard().header().status().isPaused());
}

TEST_P(MenuBarOf, OpenDashboardWithTheWindowOpenOnlyBringsItForward) {
    start();
    app->openDashboard();
    DashboardWindow* const window = app->dashboardWindow();
    press();
    panel().openButton().click();
    EXPECT_EQ(app->dashboardWindow(), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_P(MenuBarOf, ClosingTheWindowLeavesItRunningAndThePanelOpensItAgain) {
    start();
    app->openDashboard();
    closeDashboard();
    EXPECT_EQ(quits, 0);
    EXPECT_FALSE(app->dashboardWindow()->isVisible());
    press();
    panel().openButton().click();
    EXPECT_TRUE(app->dashboardWindow()->isVisible());
}

TEST_P(MenuBarOf, WithTheItemOffClosingTheLastWindowQuits) {
    start();
    app->openDashboard();
    app->settings().setShowMenuBar(false);
    closeDashboard();
    EXPECT_EQ(quits, 1);
}

TEST_P(MenuBarOf, AnotherWindowThatIsOpenKeepsItRunning) {
    start();
    app->openDashboard();
    app->settings().setShowMenuBar(false);
    app->openSettings();
    closeDashboard();
    EXPECT_EQ(quits, 0);
    closeAsUser(*app->settingsWindow());
    EXPECT_EQ(quits, 1);
}

TEST_P(MenuBarOf, ClosedBeforeThereIsATrayItWaitsForOne) {
    tray->setThere(false);
    start();
    app->openDashboard();
    closeDashboard();
    EXPECT_EQ(quits, 0) << "the desktop's panel may be later than the program";
    tray->setThere(true);
    EXPECT_EQ(quits, 0);
    EXPECT_FALSE(app->dashboardWindow()->isVisible());
    EXPECT_EQ(TrayPatience().atStart, 60s);
    EXPECT_EQ(TrayPatience().afterLoss, 5s);
}

TEST_P(MenuBarOf, ClosedBeforeThereIsATrayItEndsWhenNoneHasCome) {
    patience.atStart = 200ms;
    tray->setThere(false);
    start();
    app->openDashboard();
    closeDashboard();
    EXPECT_TRUE(handleEventsUntil([this] { return quits == 1; }));
    EXPECT_FALSE(app->dashboardWindow()->isVisible());
}

TEST_P(MenuBarOf, OpenedAgainWhileATrayIsWaitedForItStays) {
    patience.atStart = 200ms;
    tray->setThere(false);
    start();
    app->openDashboard();
    closeDashboard();
    quits = 0;
    app->reopen({});
    EXPECT_FALSE(handleEventsUntil([this] { return quits > 0; }, 300));
    EXPECT_TRUE(app->dashboardWindow()->isVisible());
}

}  // namespace
}  // namespace vantor::menu_bar_test
