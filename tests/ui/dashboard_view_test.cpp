#include "ui/dashboard/dashboard_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QScrollArea>

#include <chrono>
#include <string>
#include <variant>

#include "model/snapshot_document.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/dashboard_view_fixture.h"
#include "ui/dashboard_world.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"

namespace vantor::dashboard_view_test {
namespace {

using namespace std::chrono_literals;
using Form = VantorHorizontalFit::Form;

TEST_F(DashboardViewTest, SamplingStartsWhenItIsShownAndNotBefore) {
    world.make();
    world.settle();
    EXPECT_FALSE(world.monitor->isMonitoring());
    EXPECT_EQ(world.monitor->generation(), 0u);
    world.open();
    EXPECT_TRUE(world.monitor->isMonitoring());
}

TEST_F(DashboardViewTest, ShowingItAgainStartsNothingASecondTime) {
    world.open();
    world.view->setVisible(false);
    world.open();
    EXPECT_EQ(world.monitor->generation(), 1u);
}

TEST_F(DashboardViewTest, ShowingItDuringAPauseDoesNotEndThePause) {
    world.open();
    world.monitor->togglePause();
    world.view->setVisible(false);
    world.open();
    EXPECT_FALSE(world.monitor->isMonitoring());
}

TEST_F(DashboardViewTest, NothingIsWorkedOutWhileItIsHiddenAndAllIsThereWhenItIsShown) {
    world.open();
    world.goLive();
    const std::string before = footer();
    const auto gauge = card().gauge().gauge();
    world.view->setVisible(false);
    world.machine->hostProcessors().growth = {60, 20, 20, 0};
    world.advance(5s);
    EXPECT_EQ(footer(), before);
    EXPECT_EQ(card().gauge().gauge(), gauge);
    world.view->setVisible(true);
    EXPECT_NE(footer(), before);
    EXPECT_EQ(utf8(card().gauge().gauge().title), "80%");
}

TEST_F(DashboardViewTest, AMinimisedWindowCatchesUpWhenItIsRestored) {
    world.open();
    world.goLive();
    const std::string before = footer();
    world.view->setWindowState(Qt::WindowMinimized);
    world.advance(5s);
    EXPECT_EQ(footer(), before);
    world.view->setWindowState(Qt::WindowNoState);
    EXPECT_NE(footer(), before);
}

TEST_F(DashboardViewTest, WhatIsPublishedUnseenDuringAPauseIsShownToo) {
    world.open();
    world.goLive();
    const std::string before = footer();
    world.view->setVisible(false);
    world.monitor->togglePause();
    world.advance(1s);
    world.monitor->forceRefresh();
    world.advance(1s);
    world.view->setVisible(true);
    EXPECT_NE(footer(), before);
}

TEST_F(DashboardViewTest, EverythingWaitsBeforeTheFirstCommit) {
    world.open();
    EXPECT_EQ(footer(), "Collecting live data\u2026");
    EXPECT_EQ(utf8(card().gauge().gauge().title), "\u2014");
    EXPECT_EQ(utf8(card().header().accessibleValueText()), "Detecting processor\u2026");
    EXPECT_EQ(utf8(card().processes().accessibleValueText()), "Waiting for process data\u2026");
}

TEST_F(DashboardViewTest, EveryCardShowsItsOwnWaitingState) {
    world.open();
    DashboardView& view = *world.view;
    const auto subtitle = [](DashboardCardView& waiting) {
        return utf8(waiting.header().accessibleValueText());
    };
    EXPECT_EQ(subtitle(view.card<CPUCardView>()), "Detecting processor\u2026");
    EXPECT_EQ(subtitle(view.card<MemoryCardView>()), "Waiting for memory data");
    EXPECT_EQ(subtitle(view.card<NetworkCardView>()), "Waiting for network data");
    EXPECT_EQ(subtitle(view.card<GPUCardView>()), "Waiting for graphics data");
    EXPECT_EQ(subtitle(view.card<StorageCardView>()), "Waiting for storage data");
    EXPECT_EQ(subtitle(view.card<SystemCardView>()), "Waiting for system data");
    EXPECT_EQ(utf8(view.explorer().emptyState().accessibleValueText()),
              "No process data is available yet.");
}

TEST_F(DashboardViewTest, ShowsTheFiguresAfterTheSecondReading) {
    world.open();
    world.goLive();
    EXPECT_EQ(utf8(card().gauge().gauge().title), "40%");
    EXPECT_EQ(utf8(card().row(0).row().value), "30.0%");
    EXPECT_EQ(utf8(card().row(1).row().value), "10.0%");
    EXPECT_EQ(utf8(card().row(2).row().value), "2.40 GHz");
    EXPECT_EQ(utf8(card().row(3).row().value), "Not published");
    EXPECT_EQ(utf8(card().loadAverage().text()), "Load avg 0.50  0.25  0.12");
    EXPECT_EQ(utf8(card().header().accessibleValueText()), "2 physical \u2022 4 logical cores");
    EXPECT_EQ(card().cores().count(), 4u);
    EXPECT_EQ(footer().substr(0, 8), "Updated ");
}

TEST_F(DashboardViewTest, TheHistoryGrowsWithEachReading) {
    world.open();
    world.advance(5100ms);
    const auto& values = card().history().sparkline().values;
    EXPECT_EQ(values, world.monitor->dashboardState().histories.cpu);
    EXPECT_GE(values.size(), 5u);
}

TEST_F(DashboardViewTest, ShowsWhatTheMonitorAlreadyHas) {
    world.monitor->start();
    world.goLive();
    world.make();
    EXPECT_EQ(utf8(card().gauge().gauge().title), "40%");
}

TEST_F(DashboardViewTest, AMachineOnWhichEveryCallFailsKeepsWaiting) {
    world.machine->hostProcessors().totalFails = true;
    world.machine->hostProcessors().processorsFail = true;
    world.machine->loadAverages().answer = -1;
    world.open();
    world.advance(20s);
    EXPECT_EQ(utf8(card().gauge().gauge().title), "\u2014");
    EXPECT_EQ(world.firstFrames, 0);
}

TEST_F(DashboardViewTest, PauseAndResumeByTheButton) {
    world.open();
    world.goLive();
    click(world.view->header().pauseButton());
    EXPECT_TRUE(world.monitor->isPaused());
    EXPECT_EQ(utf8(world.view->header().pauseButton().text()), "Resume");
    EXPECT_EQ(utf8(world.view->header().pauseButton().systemImage()), "play.fill");
    EXPECT_EQ(utf8(world.view->header().status().accessibleValueText()), "Paused");
    const auto revision = card().revision();
    world.advance(10s);
    EXPECT_EQ(card().revision(), revision);
    EXPECT_EQ(utf8(card().gauge().gauge().title), "40%") << "the last figures stay";
    click(world.view->header().pauseButton());
    EXPECT_EQ(utf8(world.view->header().pauseButton().text()), "Pause");
    EXPECT_EQ(utf8(world.view->header().status().accessibleValueText()), "Live");
    world.advance(3s);
    EXPECT_GT(card().revision(), revision);
}

TEST_F(DashboardViewTest, RefreshAsksAtOnceAlsoDuringAPause) {
    world.open();
    world.goLive();
    click(world.view->header().pauseButton());
    const int reads = world.machine->hostProcessors().totalReads;
    click(world.view->header().refreshButton());
    world.settle();
    EXPECT_EQ(world.machine->hostProcessors().totalReads, reads + 1);
}

TEST_F(DashboardViewTest, QuitCallsWhoeverOwnsTheProgram) {
    world.open();
    click(world.view->header().quitButton());
    EXPECT_EQ(world.quits, 1);
}

TEST_F(DashboardViewTest, ExportAsksOnceWhereToSave) {
    world.open();
    world.goLive();
    CapsuleButtonView& button = world.view->header().exportButton();
    ASSERT_TRUE(button.isEnabled());
    click(button);
    pressKey(button, Qt::Key_Space);
    EXPECT_EQ(world.user.requests.size(), 1u) << "one dialog for two activations";
    world.user.cancel();
    world.settle();
    pressKey(button, Qt::Key_Return);
    EXPECT_EQ(world.user.requests.size(), 2u);
}

TEST_F(DashboardViewTest, ExportWritesWhatIsShown) {
    world.open();
    world.goLive();
    click(world.view->header().exportButton());
    ASSERT_EQ(world.user.requests.size(), 1u);
    world.user.confirm("/somewhere/a.json");
    world.settle();
    ASSERT_EQ(world.user.writes.size(), 1u);
    EXPECT_EQ(world.user.writes[0].destination, "/somewhere/a.json");
    const auto document = encodedSnapshot(world.monitor->dashboardState().snapshot);
    EXPECT_EQ(world.user.writes[0].bytes, std::get<std::string>(document));
    EXPECT_NE(world.user.writes[0].bytes.find("\"totalUsage\" : 0.4,"), std::string::npos);
}

}  // namespace
}  // namespace vantor::dashboard_view_test
