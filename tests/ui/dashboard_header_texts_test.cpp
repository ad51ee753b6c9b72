#include <gtest/gtest.h>

#include <limits>

#include "ui/dashboard/dashboard_header.h"
#include "ui/rendering.h"

/// What the header says; how it behaves is another file.
namespace vantor::dashboard_header_texts_test {
namespace {

DashboardHeader paused() {
    DashboardHeader header;
    header.isPaused = true;
    return header;
}

TEST(DashboardHeader, SaysWhetherFiguresAreLive) {
    EXPECT_EQ(utf8(DashboardHeader{}.statusText()), "Live");
    EXPECT_EQ(utf8(paused().statusText()), "Paused");
}

TEST(DashboardHeader, PauseBecomesResume) {
    EXPECT_EQ(utf8(DashboardHeader{}.pauseTitle()), "Pause");
    EXPECT_EQ(utf8(DashboardHeader{}.pauseSymbol()), "pause.fill");
    EXPECT_EQ(utf8(paused().pauseTitle()), "Resume");
    EXPECT_EQ(utf8(paused().pauseSymbol()), "play.fill");
}

TEST(DashboardHeader, IntervalIsHalfASecondOrWholeOnes) {
    EXPECT_EQ(utf8(DashboardHeader::intervalText(0.5)), "0.5 s");
    EXPECT_EQ(utf8(DashboardHeader::intervalText(1)), "1 s");
    EXPECT_EQ(utf8(DashboardHeader::intervalText(2)), "2 s");
    EXPECT_EQ(utf8(DashboardHeader::intervalText(5)), "5 s");
    EXPECT_EQ(utf8(DashboardHeader::intervalText(10)), "10 s");
}

TEST(DashboardHeader, AnIntervalThatNobodyOffersDoesNotFail) {
    EXPECT_EQ(utf8(DashboardHeader::intervalText(3)), "3 s");
    for (const double odd : {std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity(), 1e300}) {
        EXPECT_EQ(utf8(DashboardHeader::intervalText(odd)), "1 s") << odd;
    }
}

TEST(DashboardHeader, EqualityIgnoresTheCallbacks) {
    DashboardHeader one;
    DashboardHeader other;
    other.onQuit = [] {};
    other.onRefreshIntervalChange = [](double) {};
    EXPECT_TRUE(one == other);
    other.refreshInterval = 2;
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one == paused());
}

}  // namespace
}  // namespace vantor::dashboard_header_texts_test
