#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>

#include "app/legacy_vantor_app.h"
#include "app/modern_vantor_app.h"
#include "app/played_status_bar.h"
#include "platform/simulated/simulated_machine.h"
#include "support/event_patience.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"
#include "ui/rendering.h"
#include "ui/settings/settings_view.h"

namespace vantor::menu_bar_test {
namespace {

using namespace std::chrono_literals;

/// The whole program in either variant, with a tray of the test's own.
class MenuBarOf : public testing::TestWithParam<int> {
  protected:
    QTemporaryDir folder;
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<PlayedStatusBar> tray = std::make_shared<PlayedStatusBar>();
    int quits = 0;
    TrayPatience patience;
    std::unique_ptr<VantorApp> app;

    void start() {
        machine->processInfo().version = {GetParam(), 0, 0};
        app = makeVantorApp({machine,
                             folder.filePath(QStringLiteral("settings.ini")),
                             tray,
                             [this] { ++quits; },
                             {},
                             {},
                             patience});
    }
    void TearDown() override {
        app.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }
    MenuBarController& menuBar() { return app->menuBar(); }
    MenuBarDashboardView& panel() {
        QWidget& content = menuBar().popover()->content();
        auto* const view = dynamic_cast<MenuBarDashboardView*>(&content);
        return view ? *view : dynamic_cast<ModernMenuBarDashboardHost&>(content).view();
    }
    void press() { tray->content().onPress({1400, 0, 24, 24}); }
    void closeDashboard() { closeAsUser(*app->dashboardWindow()); }

    /// The toolkit tells of the last window's end only while its loop runs.
    static void closeAsUser(QWidget& window) {
        const auto later = [](auto&& run) {
            QMetaObject::invokeMethod(qApp, run, Qt::QueuedConnection);
        };
        later([&] {
            window.close();
            later([] { QCoreApplication::exit(); });
        });
        QApplication::exec();
    }
    const StatusMenuEntry& entry(const char* title) {
        entries_ = tray->content().menu();
        for (const StatusMenuEntry& one : entries_) {
            if (one.title == QString::fromUtf8(title)) return one;
        }
        ADD_FAILURE() << "no entry " << title;
        return entries_.front();
    }

  private:
    std::vector<StatusMenuEntry> entries_;
};

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
}  // namespace vantor::menu_bar_test
