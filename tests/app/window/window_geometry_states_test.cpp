#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

#include "app/window/window_geometry.h"
#include "app/window/window_geometry_fixture.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "support/kept_defaults.h"
#include "ui/rendering.h"

namespace vantor::window_geometry_states_test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

TEST_F(WindowGeometryTest, MaximisedItStaysSoWithTheSizeItHadBefore) {
    run();
    place(somewhere);
    wind(1min);
    window->showMaximized();
    settleEvents();
    wind(1min);
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 maximized");
    end();
    begin();
    EXPECT_TRUE(window->windowState().testFlag(Qt::WindowMaximized));
    EXPECT_EQ(window->size(), somewhere.size()) << "until it is shown";
    show();
    EXPECT_TRUE(window->isMaximized());
    window->showNormal();
    settleEvents();
    wind(1min);
    end();
    EXPECT_TRUE(QString::fromStdString(stored()).endsWith(QStringLiteral(" normal"))) << stored();
}

TEST_F(WindowGeometryTest, TheSizeThatComesBeforeTheStateIsNotTakenForItsOwn) {
    run();
    place(somewhere);
    wind(1min);
    place({0, 0, 1920, 1080});  // a window manager maximises in two steps
    wind(10ms);
    window->setWindowState(Qt::WindowMaximized);
    settleEvents();
    wind(1min);
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 maximized");
}

TEST_F(WindowGeometryTest, MinimisedOrOnTheFullScreenIsNoGeometry) {
    run();
    place(somewhere);
    wind(1min);
    for (const Qt::WindowState state : {Qt::WindowMinimized, Qt::WindowFullScreen}) {
        window->setWindowState(state);
        settleEvents();
        wind(1min);
        window->hide();
        EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
        window->show();
    }
}

TEST_F(WindowGeometryTest, OfAGoneScreenItComesToAnotherAndReturnsWithTheScreen) {
    keep("2200 200 900 700 2 2 2 2 normal");
    run();
    EXPECT_EQ(window->geometry(), QRect(1018, 200, 900, 700));
    wind(1min);
    window->hide();
    EXPECT_EQ(store->writes, 0) << "nobody has moved it";
    screens.emplace_back(1920, 0, 1920, 1080);
    show();
    EXPECT_EQ(window->geometry(), QRect(2200, 200, 900, 700));
}

TEST_F(WindowGeometryTest, ShownAgainAfterItsScreenHasGoneItIsOnAnother) {
    screens.emplace_back(1920, 0, 1920, 1080);
    run();
    place({2200, 200, 900, 700});
    window->hide();
    screens.pop_back();
    show();
    EXPECT_EQ(window->geometry(), QRect(1018, 200, 900, 700));
    end();
    EXPECT_EQ(stored(), "2200 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, MovedOnTheOtherScreenItBelongsThere) {
    keep("2200 200 900 700 2 2 2 2 normal");
    run();
    place(somewhere);
    end();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, WhatMakesNoSenseIsAsGoodAsNone) {
    for (const std::string text : {"", "rubbish", "1 2 3", "300 200 0 0 0 0 0 0 normal"}) {
        keep(text);
        begin();
        EXPECT_EQ(window->size(), QSize(1280, 820)) << text;
        window.reset();
    }
    store->values[windowName] = std::int64_t{42};
    run();
    EXPECT_EQ(window->size(), QSize(1280, 820));
    place(somewhere);
    end();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, WherePositionsAreNotToldSizesAloneAreKept) {
    tellsPositions = false;
    keep("300 200 900 700 1 24 1 3 normal");
    begin();
    EXPECT_EQ(window->size(), somewhere.size());
    EXPECT_NE(window->pos(), somewhere.topLeft());
    show();
    place({0, 0, 1000, 600});
    end();
    EXPECT_EQ(stored(), "300 200 1000 600 1 24 1 3 normal") << "another session's position stays";
}

TEST_F(WindowGeometryTest, EachNameIsAWindowOfItsOwn) {
    run();
    QWidget other;
    other.setGeometry(10, 20, 300, 200);
    {
        WindowGeometry second(other, "Vantor.Help", store, loop,
                              {[this] { return screens; }, true});
        other.show();
        other.hide();
    }
    EXPECT_EQ(stored(), "");
    EXPECT_EQ(store->value("Vantor.Help"),
              DefaultsStore::Value{std::string("10 20 300 200 2 2 2 2 normal")});
}

TEST_F(WindowGeometryTest, SurvivesTheWindowsEnd) {
    run();
    place(somewhere);
    wind(1s);
    window.reset();
    wind(1min);
    geometry.reset();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST(WindowGeometryFile, IsBesideThePreferences) {
    EXPECT_EQ(utf8(WindowGeometry::fileBeside(QStringLiteral("/there/vantor/settings.ini"))),
              "/there/vantor/windows.ini");
}

}  // namespace
}  // namespace vantor::window_geometry_states_test
