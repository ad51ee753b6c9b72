#include "app/window/window_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

#include "app/window/window_geometry_fixture.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "support/kept_defaults.h"
#include "ui/rendering.h"

namespace vantor::window_geometry_test {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

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
    window->setGeometry(0, 0, 720, 560);  // not visible there
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

}  // namespace
}  // namespace vantor::window_geometry_test
