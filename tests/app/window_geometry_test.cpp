#include "app/window_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

#include "platform/simulated/manual_main_loop.h"
#include "platform/simulated/wound_clock.h"
#include "support/kept_defaults.h"
#include "ui/rendering.h"

inline void PrintTo(const QRect& area, std::ostream* out) {
    PrintTo(QRectF(area), out);
}

namespace vantor::window_geometry_test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

// In the texts, 2 2 2 2 is the frame that the offscreen platform puts around a window.
constexpr auto windowName = "Vantor.LegacyDashboard";

class CountingDefaults : public KeptDefaults {
  public:
    void setValue(std::string_view key, const Value& value) override {
        ++writes;
        KeptDefaults::setValue(key, value);
    }
    int writes = 0;
};

class WindowGeometryTest : public testing::Test {
  protected:
    std::shared_ptr<WoundClock> clock = std::make_shared<WoundClock>();
    std::shared_ptr<ManualMainLoop> loop = std::make_shared<ManualMainLoop>(clock);
    std::shared_ptr<CountingDefaults> store = std::make_shared<CountingDefaults>();
    std::vector<QRect> screens{{0, 0, 1920, 1080}};
    bool tellsPositions = true;

    std::unique_ptr<QWidget> window;
    std::unique_ptr<WindowGeometry> geometry;

    /// A run of the program, up to the moment before its window is shown.
    void begin() {
        geometry.reset();
        window = std::make_unique<QWidget>();
        window->setMinimumSize(720, 560);
        window->resize(1280, 820);
        geometry = std::make_unique<WindowGeometry>(
            *window, windowName, store, loop,
            WindowGeometry::Surroundings{[this] { return screens; }, tellsPositions});
    }
    void run() {
        begin();
        show();
    }
    void show() {
        window->show();
        settleEvents();
    }
    void place(QRect area) {
        window->setGeometry(area);
        settleEvents();
    }
    void end() {
        geometry.reset();
        window.reset();
    }
    void wind(std::chrono::nanoseconds time) {
        const auto end = clock->now() + time;
        while (loop->nextDue() <= end) {
            clock->setNow(std::max(clock->now(), loop->nextDue()));
            loop->runDueTimer();
        }
        clock->setNow(end);
    }
    std::string stored() const {
        const auto value = store->value(windowName);
        return value ? std::get<std::string>(*value) : std::string();
    }
    void keep(const std::string& text) { store->values[windowName] = text; }

    void TearDown() override { end(); }
};

const QRect somewhere{300, 200, 900, 700};

TEST_F(WindowGeometryTest, ComesBackWhereItWas) {
    run();
    place(somewhere);
    end();
    run();
    EXPECT_EQ(window->geometry(), somewhere);
    EXPECT_FALSE(window->isMaximized());
}

TEST_F(WindowGeometryTest, IsWhereItWasBeforeItIsShown) {
    keep("300 200 900 700 1 24 1 3 normal");
    begin();
    EXPECT_EQ(window->geometry(), somewhere);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(WindowGeometryTest, DoesNotDriftFromRunToRun) {
    keep("300 200 900 700 1 24 1 3 normal");
    for (int i = 0; i < 5; ++i) {
        run();
        wind(1min);
        end();
    }
    EXPECT_EQ(stored(), "300 200 900 700 1 24 1 3 normal");
    EXPECT_EQ(store->writes, 0) << "nothing has changed";
}

TEST_F(WindowGeometryTest, IsWrittenWhenTheWindowIsHidden) {
    run();
    place(somewhere);
    EXPECT_THAT(stored(), IsEmpty());
    window->hide();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, IsWrittenWhenTheWindowIsClosed) {
    run();
    place(somewhere);
    window->close();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, EndingWhileTheWindowIsHiddenKeepsIt) {
    run();
    place(somewhere);
    window->hide();
    window->setGeometry(0, 0, 720, 560);  // nobody sees it there
    end();
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
}

TEST_F(WindowGeometryTest, AWindowThatWasNeverShownLeavesEverythingAsItIs) {
    begin();
    place(somewhere);
    end();
    EXPECT_EQ(store->writes, 0);
}

TEST_F(WindowGeometryTest, IsWrittenOnceInAFewSecondsWhileItMoves) {
    run();
    for (int i = 0; i < 600; ++i) {  // a minute of it, pausing now and then
        place(somewhere.translated(i, 0));
        wind(i % 5 == 0 ? 300ms : 50ms);
    }
    EXPECT_GE(store->writes, 5);
    EXPECT_LE(store->writes, 60 / WindowGeometry::writeInterval.count());
}

TEST_F(WindowGeometryTest, IsWrittenSoonAfterAMove) {
    run();
    place(somewhere);
    wind(400ms);
    EXPECT_EQ(store->writes, 0);
    wind(WindowGeometry::writeInterval);
    EXPECT_EQ(stored(), "300 200 900 700 2 2 2 2 normal");
    wind(1h);
    EXPECT_EQ(store->writes, 1);
    EXPECT_EQ(loop->timerCount(), 0u) << "nothing ticks while nothing moves";
}

TEST_F(WindowGeometryTest, SavingOnDemandWritesNowAndOnce) {
    run();
    place(somewhere);
    geometry->save();
    EXPECT_EQ(store->writes, 1);
    geometry->save();
    wind(1min);
    end();
    EXPECT_EQ(store->writes, 1);
}

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
}  // namespace vantor::window_geometry_test
