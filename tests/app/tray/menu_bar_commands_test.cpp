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

namespace vantor::menu_bar_commands_test {
namespace {

using namespace std::chrono_literals;

TEST_P(MenuBarOf, WithoutATrayClosingTheLastWindowQuitsWhateverTheSetting) {
    patience.atStart = 0ms;
    tray->setThere(false);
    start();
    app->openDashboard();
    settleEvents();
    closeDashboard();
    EXPECT_EQ(quits, 1);
}

TEST_P(MenuBarOf, WhenTheTrayIsGoneForGoodTheWindowComesBack) {
    patience.afterLoss = 1ms;
    start();
    app->openDashboard();
    closeDashboard();
    ASSERT_FALSE(app->dashboardWindow()->isVisible());
    tray->setThere(false);
    EXPECT_TRUE(handleEventsUntil([this] { return app->dashboardWindow()->isVisible(); }));
    EXPECT_EQ(quits, 0);
}

TEST_P(MenuBarOf, OpenDashboardClosesThePanel) {
    start();
    press();
    panel().openButton().click();
    EXPECT_FALSE(menuBar().popover()->isVisible());
}

TEST_P(MenuBarOf, TheToggleInTheSettingsWindowRemovesTheItemAndThenTheLastWindowQuits) {
    start();
    app->openSettings();
    auto& view = dynamic_cast<SettingsView&>(app->settingsWindow()->content());
    view.menuBar().click();
    EXPECT_EQ(tray->items(), 0);
    closeAsUser(*app->settingsWindow());
    EXPECT_EQ(quits, 1);
}

TEST_P(MenuBarOf, ClosedWhileTheTrayIsBeingRestartedItStaysUntilThatIsOver) {
    start();
    app->openDashboard();
    tray->setThere(false);
    closeDashboard();
    EXPECT_EQ(quits, 0) << "it may be back in a moment";
    tray->setThere(true);
    EXPECT_EQ(quits, 0);
    EXPECT_FALSE(app->dashboardWindow()->isVisible());
}

TEST_P(MenuBarOf, AboutIsOnePanelThatComesForward) {
    start();
    app->openDashboard();
    app->openAbout();
    app->openAbout();
    const auto panels = app->dashboardWindow()->findChildren<QMessageBox*>();
    EXPECT_EQ(panels.size(), 1);
}

TEST_P(MenuBarOf, AboutTellsWhatTheKernelEnforces) {
    start();
    app->openDashboard();
    app->openAbout();
    const auto* const panel = app->dashboardWindow()->findChild<QMessageBox*>();
    EXPECT_THAT(utf8(panel->informativeText()),
                testing::EndsWith("\n\nConfined by the kernel: no"));
}

TEST_P(MenuBarOf, QuitInThePanelAndInTheMenuQuits) {
    start();
    press();
    panel().quitButton().click();
    EXPECT_EQ(quits, 1);
    entry("Quit").action();
    EXPECT_EQ(quits, 2);
}

TEST_P(MenuBarOf, ThePlainMenuHasTheFiguresAndTheSameActions) {
    start();
    std::vector<std::string> titles;
    for (const StatusMenuEntry& one : tray->content().menu())
        titles.push_back(utf8(one.title));
    const std::vector<std::string> expected{"CPU  \u2014",
                                            "Memory  \u2014",
                                            "Download  \u2014",
                                            "Upload  \u2014",
                                            "",
                                            "Open Dashboard",
                                            "Pause",
                                            "Refresh",
                                            "Settings\u2026",
                                            "",
                                            "Quit"};
    EXPECT_EQ(titles, expected);
    entry("Open Dashboard").action();
    EXPECT_TRUE(app->dashboardWindow()->isVisible());
    entry("Pause").action();
    EXPECT_TRUE(app->monitor().isPaused());
    EXPECT_NE(entry("Resume").action, nullptr);
    entry("Settings\u2026").action();
    EXPECT_TRUE(app->settingsWindow()->isVisible());
}

TEST_P(MenuBarOf, TheToolTipSaysTheFiguresOfTheMomentItIsAskedFor) {
    start();
    EXPECT_EQ(utf8(tray->content().toolTip()), "CPU —, Memory —, Download —, Upload —");
    CPUStats busy = CPUStats::empty();
    busy.totalUsage = 0.42;
    SystemMonitor& monitor = app->monitor();
    monitor.receiveCPU(busy, monitor.generation());
    const auto says = [this](const char* figures) {
        return handleEventsUntil(
            [&] { return tray->content().toolTip().startsWith(QString::fromUtf8(figures)); });
    };
    EXPECT_TRUE(says("CPU 42%, Memory "));
    const int told = tray->toolTipChanges();
    EXPECT_EQ(told, 1);
    busy.totalUsage = 0.5;
    monitor.receiveCPU(busy, monitor.generation());
    EXPECT_TRUE(says("CPU 50%"));
    EXPECT_EQ(tray->toolTipChanges(), told) << "no desktop is to read the item with every tick";
}

TEST_P(MenuBarOf, SettingsSayWhereThereIsNoTray) {
    tray->setThere(false);
    start();
    app->openSettings();
    auto& view = dynamic_cast<SettingsView&>(app->settingsWindow()->content());
    EXPECT_TRUE(view.menuBarNote().isVisible());
    EXPECT_EQ(utf8(view.menuBarNote().text()), "This desktop has no tray to show it in.");
    tray->setThere(true);
    EXPECT_FALSE(view.menuBarNote().isVisible());
}

TEST_P(MenuBarOf, ReopeningCreatesTheWindowAndThenBringsItForward) {
    start();
    app->reopen({});
    ASSERT_NE(app->dashboardWindow(), nullptr);
    EXPECT_TRUE(app->dashboardWindow()->isVisible());
    DashboardWindow* const window = app->dashboardWindow();
    window->showMinimized();
    app->reopen({});
    EXPECT_EQ(app->dashboardWindow(), window);
    EXPECT_FALSE(window->isMinimized());
}

TEST_P(MenuBarOf, WindowsHaveTheirTitlesAndSizes) {
    start();
    app->openHelp();
    EXPECT_EQ(utf8(app->helpWindow()->windowTitle()), "Vantor Help");
    EXPECT_EQ(app->helpWindow()->minimumSize(), QSize(560, 480));
    EXPECT_EQ(app->helpWindow()->size().width(), 700);
    ContentWindow* const help = app->helpWindow();
    help->close();
    app->openHelp();
    EXPECT_EQ(app->helpWindow(), help) << "made once and reused";
    app->openSettings();
    EXPECT_EQ(utf8(app->settingsWindow()->windowTitle()), "Vantor Settings");
    EXPECT_GE(app->settingsWindow()->minimumSize().width(), 480);
}

TEST(PopoverPlace, IsUnderTheItemAndWithinTheScreen) {
    const QRect screen(0, 0, 1440, 960);
    const QSize size(332, 252);
    const auto place = [&](const QRect& anchor) {
        return QRect(popoverPlace(size, anchor, screen, Qt::LeftToRight), size);
    };
    EXPECT_EQ(place({700, 0, 24, 24}).topLeft(), QPoint(711 - 166, 30));
    EXPECT_EQ(place({1410, 0, 24, 24}).right(), 1440 - 1 - 6) << "held at the right edge";
    EXPECT_EQ(place({0, 0, 24, 24}).left(), 6);
    EXPECT_LT(place({700, 930, 24, 24}).bottom(), 930) << "over an item at the bottom";
    EXPECT_EQ(place({}).topRight(), QPoint(1440 - 1 - 6, 6)) << "where nobody says where it is";
}

TEST(PopoverPlace, FollowsAScreenThatBeginsElsewhere) {
    const QPoint place = popoverPlace({332, 252}, {-600, -1080, 24, 24}, {-1920, -1080, 1920, 1080},
                                      Qt::LeftToRight);
    EXPECT_EQ(place, QPoint(-588 - 166, -1080 + 24 + 6));
}

}  // namespace
}  // namespace vantor::menu_bar_commands_test
