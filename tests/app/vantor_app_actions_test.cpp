#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <memory>

#include "app/tray/fake_status_bar.h"
#include "app/vantor_app.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/fake_export_platform.h"
#include "support/event_patience.h"
#include "ui/rendering.h"

namespace vantor::vantor_app_actions_test {
namespace {

/// What is asked of the program from outside: by its options, or over the bus.
class VantorAppActions : public testing::Test {
  protected:
    VantorApp& start(std::chrono::milliseconds trayPatience = std::chrono::minutes(1)) {
        app = makeVantorApp({machine,
                             folder.filePath(QStringLiteral("settings.ini")),
                             tray,
                             [this] { hasQuit = true; },
                             user.platform(),
                             {},
                             {trayPatience, trayPatience}});
        return *app;
    }
    void TearDown() override {
        if (app) app->shutDown(std::chrono::seconds(5));
        app.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }
    bool hasWindow() const { return app->dashboardWindow() && app->dashboardWindow()->isVisible(); }
    bool isSettingsOpen() const {
        return app->settingsWindow() && app->settingsWindow()->isVisible();
    }
    bool hasFigures() const { return app->monitor().dashboardState().revisions.cpu > 0; }

    QTemporaryDir folder;
    FakeExportPlatform user;
    bool hasQuit = false;
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<FakeStatusBar> tray = std::make_shared<FakeStatusBar>();
    std::unique_ptr<VantorApp> app;
};

TEST_F(VantorAppActions, PauseAndResumeLeaveTheWindowAloneAndMayComeTwice) {
    start().begin(AppAction::background);
    for (int i = 0; i < 2; ++i) {
        app->perform({AppAction::pause});
        EXPECT_TRUE(app->monitor().isPaused());
    }
    for (int i = 0; i < 2; ++i) {
        app->perform({AppAction::resume});
        EXPECT_FALSE(app->monitor().isPaused());
    }
    app->perform({AppAction::refresh});
    EXPECT_FALSE(hasWindow());
}

TEST_F(VantorAppActions, StartedForAPauseItHasItsWindowAndIsPaused) {
    start().begin(AppAction::pause);
    EXPECT_TRUE(hasWindow());
    EXPECT_TRUE(app->monitor().isPaused());
}

TEST_F(VantorAppActions, ExportBringsTheWindowForwardAndAsksWhereTo) {
    start().begin(AppAction::background);
    app->perform({AppAction::exportSnapshot});
    EXPECT_TRUE(hasWindow());
    EXPECT_TRUE(handleEventsUntil([this] { return user.openDialogs == 1; }));
}

TEST_F(VantorAppActions, SettingsOpenWithoutTheDashboard) {
    start().begin(AppAction::background);
    app->perform({AppAction::settings});
    EXPECT_TRUE(isSettingsOpen());
    EXPECT_FALSE(hasWindow());
}

TEST_F(VantorAppActions, StartedForTheSettingsItHasBoth) {
    start().begin(AppAction::settings);
    EXPECT_TRUE(isSettingsOpen());
    EXPECT_TRUE(hasWindow());
}

TEST_F(VantorAppActions, InTheBackgroundItReadsWithoutAWindow) {
    machine->hostProcessors().growth = {30, 10, 60, 0};
    start().begin(AppAction::background);
    EXPECT_TRUE(handleEventsUntil([this] {
        machine->clock()->wind(std::chrono::milliseconds(20));
        return hasFigures();
    })) << "the tray's menu shows them";
    EXPECT_EQ(app->dashboardWindow(), nullptr);
    app->perform({AppAction::activate});
    EXPECT_TRUE(hasWindow());
}

TEST_F(VantorAppActions, WithoutATrayItemTheBackgroundIsTheWindow) {
    start().settings().setShowMenuBar(false);
    app->begin(AppAction::background);
    EXPECT_TRUE(hasWindow());
}

TEST_F(VantorAppActions, WhereNoTrayComesTheWindowDoes) {
    tray->setThere(false);
    start(std::chrono::milliseconds(1)).begin(AppAction::background);
    EXPECT_EQ(app->dashboardWindow(), nullptr) << "one may still come";
    EXPECT_TRUE(handleEventsUntil([this] { return hasWindow(); }));
    EXPECT_FALSE(hasQuit);
}

TEST_F(VantorAppActions, BackgroundHidesAllWindowsInTheTray) {
    start().begin(AppAction::settings);
    app->openHelp();
    app->perform({AppAction::background});
    EXPECT_FALSE(hasWindow());
    EXPECT_FALSE(isSettingsOpen());
    EXPECT_FALSE(app->helpWindow()->isVisible());
    settleEvents();
    EXPECT_FALSE(hasQuit);
}

TEST_F(VantorAppActions, BackgroundHidesNothingWhereNothingWouldLeadBack) {
    start().begin(AppAction::activate);
    tray->setThere(false);
    app->perform({AppAction::background});
    EXPECT_TRUE(hasWindow());
    tray->setThere(true);
    app->settings().setShowMenuBar(false);
    app->perform({AppAction::background});
    EXPECT_TRUE(hasWindow());
}

TEST_F(VantorAppActions, AfterItsEndItDoesNothing) {
    start().begin(AppAction::activate);
    app->shutDown(std::chrono::seconds(5));
    for (const AppAction action : {AppAction::exportSnapshot, AppAction::pause})
        app->perform({action});
}

}  // namespace
}  // namespace vantor::vantor_app_actions_test
