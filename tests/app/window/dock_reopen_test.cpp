#include "app/window/dock_reopen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLayout>
#include <QTemporaryDir>

#include <chrono>
#include <memory>

#include "app/desktop.h"
#include "app/tray/fake_status_bar.h"
#include "app/vantor_app.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/rendering.h"

namespace vantor::dock_reopen_test {
namespace {

/// What the toolkit says of a click on the dock's icon, also to a program that is active as it is.
void activate() {
    emit qApp->applicationStateChanged(Qt::ApplicationActive);
}

void settle() {
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

class DockReopenTest : public testing::Test {
  protected:
    int reopened = 0;
    std::unique_ptr<DockReopen> dock = std::make_unique<DockReopen>([this] { ++reopened; });
};

TEST_F(DockReopenTest, WithNothingOnTheScreenAnActivationReopens) {
    activate();
    EXPECT_EQ(reopened, 0) << "not at once: what it belongs to may be about to open";
    settle();
    EXPECT_EQ(reopened, 1);
    activate();
    settle();
    EXPECT_EQ(reopened, 2);
}

TEST_F(DockReopenTest, TwoActivationsInOneTurnAreOne) {
    activate();
    activate();
    settle();
    EXPECT_EQ(reopened, 1);
}

TEST_F(DockReopenTest, LosingTheFocusReopensNothing) {
    for (const auto state :
         {Qt::ApplicationInactive, Qt::ApplicationHidden, Qt::ApplicationSuspended}) {
        emit qApp->applicationStateChanged(state);
        settle();
    }
    EXPECT_EQ(reopened, 0);
}

TEST_F(DockReopenTest, WhateverIsOnTheScreenByTheNextTurnIsWhatItWasFor) {
    for (const Qt::WindowType type : {Qt::Window, Qt::Dialog, Qt::Popup, Qt::Tool}) {
        QWidget window(nullptr, type);
        activate();
        window.show();
        settle();
        EXPECT_EQ(reopened, 0) << type;
    }
}

TEST_F(DockReopenTest, AWindowInTheDockCountsAsOpen) {
    QWidget window;
    window.showMinimized();
    settle();
    activate();
    settle();
    EXPECT_EQ(reopened, 0);
}

TEST_F(DockReopenTest, AfterItsEndItTellsOfNothing) {
    activate();
    dock.reset();
    activate();
    settle();
    EXPECT_EQ(reopened, 0);
}

/// The whole program in either variant, on a desktop with a dock.
class ProgramWithDock : public testing::TestWithParam<int> {
  protected:
    void SetUp() override { start({.hasOneMenuBar = true, .reopensByActivation = true}); }
    void TearDown() override {
        app.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }
    void start(DesktopTraits ways) {
        app.reset();
        machine->processInfo().version = {GetParam(), 0, 0};
        const QString file = folder.filePath(QStringLiteral("settings.ini"));
        app = makeVantorApp({machine, file, tray, [] {}, {}, ways});
    }
    bool isDashboardOpen() {
        DashboardWindow* const window = app->dashboardWindow();
        return window && window->isVisible();
    }

    QTemporaryDir folder;
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<FakeStatusBar> tray = std::make_shared<FakeStatusBar>();
    std::unique_ptr<VantorApp> app;
};

INSTANTIATE_TEST_SUITE_P(Variants, ProgramWithDock, testing::Values(12, 14));

TEST_P(ProgramWithDock, WithNoWindowOpenAClickOnItsIconOpensTheDashboard) {
    activate();
    settle();
    EXPECT_TRUE(isDashboardOpen());
    app->dashboardWindow()->hide();
    settle();
    activate();
    settle();
    EXPECT_TRUE(isDashboardOpen());
}

TEST_P(ProgramWithDock, WithAnotherWindowOpenNothingIsOpened) {
    app->openHelp();
    settle();
    activate();
    settle();
    EXPECT_FALSE(isDashboardOpen());
}

TEST_P(ProgramWithDock, TheActivationThatOpeningThePanelBringsOpensNoDashboard) {
    tray->content().onPress({1400, 0, 24, 24});
    activate();
    settle();
    ASSERT_TRUE(app->menuBar().popover()->isVisible());
    EXPECT_FALSE(isDashboardOpen());
}

TEST_P(ProgramWithDock, OnADesktopWithoutOneAnActivationOpensNothing) {
    start({});
    activate();
    settle();
    EXPECT_FALSE(isDashboardOpen());
}

TEST_P(ProgramWithDock, AfterItsEndNothingIsOpened) {
    app->shutDown(std::chrono::milliseconds(100));
    activate();
    settle();
    EXPECT_FALSE(isDashboardOpen());
}

TEST_P(ProgramWithDock, TheDashboardHasNoMenuBarOfItsOwnWhereOneServesAllWindows) {
    app->openDashboard();
    EXPECT_EQ(app->dashboardWindow()->dashboard().layout()->menuBar(), nullptr);
    EXPECT_NE(app->commands().sharedMenuBar(), nullptr);
    start({});
    app->openDashboard();
    EXPECT_NE(app->dashboardWindow()->dashboard().layout()->menuBar(), nullptr);
    EXPECT_EQ(app->commands().sharedMenuBar(), nullptr);
}

}  // namespace
}  // namespace vantor::dock_reopen_test
