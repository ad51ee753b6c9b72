#include "ui/components/chart_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QToolTip>

#include <algorithm>
#include <array>

#include "ui/cards/cpu_card.h"
#include "ui/cards/network_card.h"
#include "ui/components/labeled_sparkline.h"
#include "ui/components/sparkline.h"
#include "ui/dashboard_world.h"
#include "ui/gestures.h"
#include "ui/other_font.h"

/// A chart says its samples to who points at them.
namespace vantor::chart_view_test {
namespace {

constexpr std::array shares{0.1, 0.9, 0.25, 0.5, 0.75};
constexpr std::array times{100.0, 101.0, 102.0, 700.0, 701.0};  // there was a pause

class ChartViewTest : public testing::Test {
  protected:
    SparklineView chart{
        QStringLiteral("CPU history"), {{}, VantorTheme::cyan(), std::pair{0.0, 1.0}}, 62};

    void SetUp() override {
        chart.setClock([] { return 703.0; });
        chart.show(shares, QStringLiteral("75%"), times);
        chart.resize(401, 62);
        chart.setVisible(true);
        settleEvents();
    }
    void pointAt(double x) { sendMouse(chart, QEvent::MouseMove, {x, 30}); }
    void leave() {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&chart, &event);
    }
    void focusByKey(bool isIn) {
        QFocusEvent event(isIn ? QEvent::FocusIn : QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&chart, &event);
    }
    std::string read() const { return chart.reading() ? utf8(chart.reading()->text()) : ""; }
    QImage drawn() { return rendered(chart, chart.size()); }
};

TEST_F(ChartViewTest, SaysNothingUntilThePointerComes) {
    EXPECT_FALSE(chart.reading());
    const QImage before = drawn();
    pointAt(100);
    EXPECT_NE(drawn(), before);
    leave();
    EXPECT_FALSE(chart.reading());
    EXPECT_EQ(drawn(), before);
}

TEST_F(ChartViewTest, SaysTheNearestSampleItsAgeAndTheRange) {
    pointAt(0);
    EXPECT_EQ(read(), "10.0%, 10 min 3 s ago, 10.0% – 90.0%");
    pointAt(149);
    EXPECT_EQ(read(), "90.0%, 10 min 2 s ago, 10.0% – 90.0%");
    pointAt(151);
    EXPECT_EQ(read(), "25.0%, 10 min 1 s ago, 10.0% – 90.0%");
    pointAt(400);
    EXPECT_EQ(read(), "75.0%, 2 s ago, 10.0% – 90.0%");
}

TEST_F(ChartViewTest, ALineStandsAtTheSampleAndWithinTheChartAtItsEnds) {
    const QColor line = VantorTheme::secondaryLabel(ColorScheme::dark);
    for (const auto& [x, column] : {std::pair{90, 100}, {0, 0}, {400, 400}}) {
        pointAt(x);
        EXPECT_TRUE(isNear(colorAt(drawn(), column + 0.5, 0.5), line, 40) ||
                    pixelsLike(drawn(), QRectF(column, 0, 1, 62), line) > 20)
            << x;
    }
}

TEST_F(ChartViewTest, WhatIsPointedAtIsTheSampleThatIsThereNow) {
    pointAt(400);
    chart.show(std::array{0.9, 0.25, 0.5, 0.75, 0.3}, QStringLiteral("30%"),
               std::array{101.0, 102.0, 700.0, 701.0, 703.0});
    EXPECT_EQ(read(), "30.0%, now, 25.0% – 90.0%");
}

TEST_F(ChartViewTest, ArrowKeysReadSampleBySample) {
    focusByKey(true);
    EXPECT_EQ(read(), "75.0%, 2 s ago, 10.0% – 90.0%");
    pressKey(chart, Qt::Key_Left);
    EXPECT_EQ(chart.reading()->sample, 3u);
    pressKey(chart, Qt::Key_Home);
    EXPECT_EQ(chart.reading()->sample, 0u);
    pressKey(chart, Qt::Key_Left);
    EXPECT_EQ(chart.reading()->sample, 0u);
    pressKey(chart, Qt::Key_Right);
    EXPECT_EQ(chart.reading()->sample, 1u);
    pressKey(chart, Qt::Key_End);
    EXPECT_EQ(chart.reading()->sample, 4u);
    pressKey(chart, Qt::Key_Right);
    EXPECT_EQ(chart.reading()->sample, 4u);
}

TEST_F(ChartViewTest, ReadingEndsWithEscapeAndWithTheFocus) {
    focusByKey(true);
    pressKey(chart, Qt::Key_Escape);
    EXPECT_FALSE(chart.reading());
    pressKey(chart, Qt::Key_Left);
    EXPECT_TRUE(chart.reading());
    focusByKey(false);
    EXPECT_FALSE(chart.reading());
}

TEST_F(ChartViewTest, AChosenSampleStaysChosenAsItMovesAndTheNewestStaysTheNewest) {
    const std::array next{0.9, 0.25, 0.5, 0.75, 0.3};
    const std::array nextTimes{101.0, 102.0, 700.0, 701.0, 703.0};
    focusByKey(true);
    pressKey(chart, Qt::Key_Left);
    chart.show(next, QStringLiteral("30%"), nextTimes);
    EXPECT_EQ(read(), "50.0%, 3 s ago, 25.0% – 90.0%");
    pressKey(chart, Qt::Key_End);
    chart.show(shares, QStringLiteral("75%"), times);
    EXPECT_EQ(chart.reading()->sample, 4u);
    pressKey(chart, Qt::Key_Home);
    chart.show(next, QStringLiteral("30%"), nextTimes);
    EXPECT_EQ(chart.reading()->sample, 0u) << "the one that was chosen has left the history";
}

TEST_F(ChartViewTest, IsReadAloudWhileItIsReadByKey) {
    QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(&chart);
    EXPECT_TRUE(element->state().focusable);
    EXPECT_EQ(utf8(element->text(QAccessible::Value)), "75%");
    focusByKey(true);
    pressKey(chart, Qt::Key_Home);
    EXPECT_EQ(utf8(element->text(QAccessible::Value)), "10.0%, 10 min 3 s ago, 10.0% – 90.0%");
}

TEST_F(ChartViewTest, ItsHelpSaysWhatHeightAndWidthMean) {
    hover(chart, {20, 20});
    EXPECT_EQ(utf8(QToolTip::text()),
              "The height is 0% to 100%. The width is the last 10 min 1 s.");
    QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(&chart);
    EXPECT_EQ(utf8(element->text(QAccessible::Description)),
              "75%, The height is 0% to 100%. The width is the last 10 min 1 s.");
    QToolTip::hideText();
}

TEST_F(ChartViewTest, ItsHelpDoesNotCoverIt) {
    hover(chart, {20, 20});
    const auto widgets = QApplication::topLevelWidgets();
    const auto tip = std::ranges::find_if(widgets, [](const QWidget* widget) {
        return widget->inherits("QTipLabel") && widget->isVisible();
    });
    ASSERT_NE(tip, widgets.end());
    const QRect seen(chart.mapToGlobal(QPoint()), chart.size());
    EXPECT_FALSE((*tip)->geometry().intersects(seen));
    QToolTip::hideText();
}

TEST(ChartView, WithoutARangeItsHelpNamesTheSmallestAndTheLargest) {
    LabeledSparklineView chart({QStringLiteral("Upload"), {}, {}, VantorTheme::orange()});
    EXPECT_EQ(utf8(chart.accessibleHelp()),
              "The height is the smallest to the largest value shown.");
    chart.show(QStringLiteral("2 KB/s"), std::array{500.0, 2000.0}, std::array{5.0, 65.0});
    EXPECT_EQ(utf8(chart.accessibleHelp()),
              "The height is the smallest to the largest value shown: 500 bytes/s – 2 KB/s. The "
              "width is the last 1 min.");
}

TEST(ChartView, HasNothingToSayWithoutSamplesAndNoAgeWithoutTimes) {
    SparklineView chart(QStringLiteral("CPU history"), {}, 62);
    chart.resize(100, 62);
    sendMouse(chart, QEvent::MouseMove, {50, 30});
    EXPECT_FALSE(chart.reading());
    chart.show(std::array{0.5}, QStringLiteral("50%"));
    EXPECT_EQ(utf8(chart.reading()->text()), "50.0%, 50.0% – 50.0%");
}

TEST(ChartView, AgesAreSaidInTheUnitsOfPeople) {
    EXPECT_EQ(utf8(ChartView::ageText(0.9)), "now");
    EXPECT_EQ(utf8(ChartView::ageText(59.9)), "59 s ago");
    EXPECT_EQ(utf8(ChartView::ageText(60)), "1 min ago");
    EXPECT_EQ(utf8(ChartView::ageText(3725)), "1 h 2 min ago");
}

TEST(ChartView, ItsLabelStaysWithinTheChart) {
    const QRectF area(0, 20, 200, 54);
    for (const double x : {0.0, 3.0, 100.0, 197.0, 200.0}) {
        const QRectF label = ChartView::labelArea(area, x, {90, 34});
        EXPECT_TRUE(area.contains(label)) << x;
        EXPECT_FALSE(label.left() < x && x < label.right()) << x;
    }
    EXPECT_TRUE(area.contains(ChartView::labelArea(area, 100, {300, 90})));
}

TEST(ChartView, MovesNothingAndDrawsWithinItselfWithLargeLettersAndMirrored) {
    const OtherFont large(1.5);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        LabeledSparklineView chart({QStringLiteral("Upload"), {}, {}, VantorTheme::orange()});
        chart.setLayoutDirection(direction);
        chart.show(QStringLiteral("2 KB/s"), std::array{500.0, 2000.0}, std::array{5.0, 65.0});
        const QSize hint = chart.sizeHint();
        chart.resize(240, hint.height());
        sendMouse(chart, QEvent::MouseMove, {0, hint.height() - 10.0});
        EXPECT_EQ(chart.sizeHint(), hint);
        EXPECT_EQ(chart.reading()->sample, 0u) << "time runs to the right in any language";
    }
}

TEST(ChartsOfTheDashboard, AreReachedByTabAndReadTheMachinesOwnHistory) {
    DashboardWorld world;
    world.open();
    world.goLive();
    world.advance(std::chrono::seconds(30));
    SparklineView& chart = world.view->card<CPUCardView>().history();
    EXPECT_TRUE(chart.focusPolicy() & Qt::TabFocus);
    sendMouse(chart, QEvent::MouseMove, {0, 10});
    ASSERT_TRUE(chart.reading());
    EXPECT_EQ(utf8(chart.reading()->value), "40.0%");
    world.monitor->togglePause();
    world.advance(std::chrono::seconds(120));
    sendMouse(chart, QEvent::MouseMove, {chart.width() - 1.0, 10});
    EXPECT_EQ(utf8(chart.reading()->age).substr(0, 5), "2 min");
}

}  // namespace
}  // namespace vantor::chart_view_test
