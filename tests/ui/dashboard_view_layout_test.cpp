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
#include "ui/dashboard/dashboard_view.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/dashboard_view_fixture.h"
#include "ui/dashboard_world.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"

namespace vantor::dashboard_view_layout_test {
namespace {

using namespace std::chrono_literals;
using Form = VantorHorizontalFit::Form;

TEST_F(DashboardViewTest, ChoosingAnIntervalWritesTheSettingAndShowsIt) {
    world.open();
    EXPECT_EQ(utf8(world.view->header().interval().text()), "0.5 s");
    world.view->header().interval().menu().actions().at(3)->trigger();
    EXPECT_DOUBLE_EQ(world.settings->refreshInterval(), 5);
    EXPECT_EQ(std::get<double>(world.defaults->values.at("refreshInterval")), 5);
    EXPECT_EQ(utf8(world.view->header().interval().text()), "5 s");
}

TEST_F(DashboardViewTest, AnIntervalSetElsewhereIsShown) {
    world.open();
    world.settings->setRefreshInterval(10);
    EXPECT_EQ(utf8(world.view->header().interval().text()), "10 s");
    world.monitor->togglePause();
    EXPECT_EQ(utf8(world.view->header().interval().text()), "10 s");
}

TEST_F(DashboardViewTest, FollowsTheAppearanceWhileItIsOpen) {
    world.settings->setAppearance(Appearance::dark);
    world.open();
    const auto corner = [&] {
        settleEvents();
        return world.view->grab().toImage().pixelColor(2, 2);
    };
    EXPECT_TRUE(isNear(corner(), QColor::fromRgbF(0.035f, 0.045f, 0.07f)));
    world.settings->setAppearance(Appearance::light);
    EXPECT_TRUE(isNear(corner(), QColor::fromRgbF(0.9f, 0.95f, 0.99f)));
    EXPECT_EQ(colorScheme(card()), ColorScheme::light);
    EXPECT_EQ(colorScheme(world.view->header().quitButton()), ColorScheme::light);
    world.settings->setAppearance(Appearance::dark);
    EXPECT_TRUE(isNear(corner(), QColor::fromRgbF(0.035f, 0.045f, 0.07f)));
}

TEST_F(DashboardViewTest, BackgroundFillsTheWholeView) {
    world.open(QSize(900, 700));
    const QImage image = world.view->grab().toImage();
    for (const QPoint place : {QPoint(0, 0), QPoint(899, 0), QPoint(0, 699), QPoint(885, 699)}) {
        EXPECT_EQ(image.pixelColor(place).alpha(), 255);
    }
    EXPECT_TRUE(isNear(image.pixelColor(0, 699), QColor::fromRgbF(0.05f, 0.045f, 0.083f), 6));
}

TEST_F(DashboardViewTest, FirstLiveFrameIsReportedOnceAndShowsTheFigures) {
    std::vector<std::string> titles;
    world.onFirstLiveFrame = [&] { titles.push_back(utf8(card().gauge().gauge().title)); };
    world.open();
    EXPECT_TRUE(titles.empty()) << "nothing is live yet";
    world.advance(10s);
    EXPECT_EQ(titles, std::vector<std::string>{"40%"});
}

TEST_F(DashboardViewTest, AViewThatGoesBeforeItsFirstFrameReportsNothing) {
    world.open();
    world.clock->wind(1100ms);
    while (world.loop->runDueTimer()) {
        while (world.queues->runWaiting() + world.loop->runPosted() > 0) {
        }
    }
    world.view.reset();
    world.advance(5s);
    EXPECT_EQ(world.firstFrames, 0);
}

TEST_F(DashboardViewTest, AViewThatIsGoneNoLongerObserves) {
    world.open();
    world.view.reset();
    world.goLive();
    world.settings->setRefreshInterval(2);
    world.monitor->togglePause();
    EXPECT_EQ(world.firstFrames, 0);
}

TEST_F(DashboardViewTest, PartsStandInTheirOrderEighteenApart) {
    world.open(QSize(720, 560));
    const QRect header = placeOf(world.view->header());
    const QRect cpu = placeOf(card());
    EXPECT_EQ(header.left(), cpu.left());
    EXPECT_EQ(cpu.top() - header.bottom() - 1, 18);
    EXPECT_GE(placeOf(world.view->footer()).top() - cpu.bottom() - 1, 18);
    EXPECT_LE(cpu.width(), 680);
}

TEST_F(DashboardViewTest, TheSmallestWindowShowsAllControlsAndScrollsOnlyDown) {
    world.open(QSize(720, 560));
    QWidget& content = *scrollArea().widget();
    EXPECT_LE(content.width(), 720);
    EXPECT_GE(content.height(), content.heightForWidth(content.width()));
    EXPECT_TRUE(content.rect().contains(placeOf(world.view->header().quitButton())));
    EXPECT_LT(placeOf(world.view->header().quitButton()).bottom(), placeOf(card()).top());
    EXPECT_EQ(scrollArea().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST_F(DashboardViewTest, NewerSystemsScrollWithTheSlimBar) {
    world.open();
    EXPECT_NE(dynamic_cast<VantorScrollView*>(&scrollArea()), nullptr);
}

TEST_F(DashboardViewTest, OlderSystemsScrollPlainlyAndGoByBreakpoints) {
    world.machine->processInfo().version = {12, 0, 0};
    world.open(QSize(880, 700));
    EXPECT_EQ(dynamic_cast<VantorScrollView*>(&scrollArea()), nullptr);
    EXPECT_EQ(world.view->header().fit().form(), Form::fallback);
    world.open(QSize(1100, 700));
    EXPECT_EQ(world.view->footer().form(), Form::primary);
    EXPECT_EQ(world.view->header().fit().form(), Form::primary);
    world.open(QSize(720, 560));
    EXPECT_EQ(world.view->footer().form(), Form::fallback);
}

}  // namespace
}  // namespace vantor::dashboard_view_layout_test
