#include "ui/components/ring_gauge.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "ui/rendering.h"

namespace vantor::ring_gauge_test {
namespace {

constexpr double side = 126;
constexpr double lineWidth = 12;

RingGauge gaugeOf(double value) {
    return {value, QStringLiteral("42%"), QStringLiteral("CPU Load"), VantorTheme::cyan(),
            lineWidth};
}

QImage drawn(double value, ColorScheme scheme = ColorScheme::dark) {
    RingGaugeView view(gaugeOf(value));
    return rendered(view, view.sizeHint(), scheme);
}

/// The colour in the middle of the stroke, that share of a turn clockwise from the top.
QColor onRing(const QImage& image, double turn) {
    const double angle = turn * 2 * std::numbers::pi;
    const double radius = (side - lineWidth) / 2;
    return colorAt(image, side / 2 + radius * std::sin(angle), side / 2 - radius * std::cos(angle));
}

QColor track(ColorScheme scheme) {
    return VantorTheme::faded(VantorTheme::primaryLabel(scheme), 0.08);
}

TEST(RingGaugeGeometry, CircleRunsThroughTheMiddleOfTheStroke) {
    const auto geometry = RingGaugeGeometry::make({0, 0, 126, 126}, 0.5, 12);
    EXPECT_EQ(geometry.circle, QRectF(6, 6, 114, 114));
    EXPECT_DOUBLE_EQ(geometry.sweep, 180);
}

TEST(RingGaugeGeometry, CircleStandsInTheMiddleOfAnOblongArea) {
    const auto geometry = RingGaugeGeometry::make({10, 20, 200, 100}, 1, 10);
    EXPECT_EQ(geometry.circle, QRectF(65, 25, 90, 90));
}

TEST(RingGaugeGeometry, SweepIsHeldWithinNoneAndAFullTurn) {
    const auto sweep = [](double value) {
        return RingGaugeGeometry::make({0, 0, 126, 126}, value, 12).sweep;
    };
    EXPECT_DOUBLE_EQ(sweep(-0.3), 0);
    EXPECT_DOUBLE_EQ(sweep(0), 0);
    EXPECT_DOUBLE_EQ(sweep(0.25), 90);
    EXPECT_DOUBLE_EQ(sweep(1), 360);
    EXPECT_DOUBLE_EQ(sweep(1.4), 360);
    EXPECT_DOUBLE_EQ(sweep(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_DOUBLE_EQ(sweep(std::numeric_limits<double>::infinity()), 360);
}

TEST(RingGaugeGeometry, AStrokeWiderThanTheAreaLeavesNoCircle) {
    EXPECT_EQ(RingGaugeGeometry::make({0, 0, 8, 8}, 1, 12).circle.size(), QSizeF(0, 0));
}

TEST(RingGauge, IsAnEmptyRingBelowZero) {
    for (const double value : {-0.3, 0.0}) {
        const QImage image = drawn(value);
        EXPECT_EQ(pixelsLike(image, {0, 0, side, side}, VantorTheme::cyan()), 0);
        for (const double turn : {0.0, 0.25, 0.5, 0.75}) {
            EXPECT_TRUE(isNear(onRing(image, turn), track(ColorScheme::dark))) << turn;
        }
    }
}

TEST(RingGauge, IsAFullRingAboveOne) {
    const QImage image = drawn(1.4);
    for (double turn = 0; turn < 1; turn += 0.01) {
        ASSERT_TRUE(isNear(onRing(image, turn), VantorTheme::cyan())) << turn;
    }
    EXPECT_EQ(image, drawn(1));
}

TEST(RingGauge, KeepsItsTextsWhateverTheValue) {
    const QRectF middle(30, 40, 66, 50);
    const int ink = paintedPixels(drawn(0.5), middle);
    EXPECT_GT(ink, 100);
    EXPECT_EQ(paintedPixels(drawn(-0.3), middle), ink);
    EXPECT_EQ(paintedPixels(drawn(1.4), middle), ink);
}

TEST(RingGauge, StartsAtTheTopAndRunsClockwise) {
    const QImage image = drawn(0.25);
    EXPECT_TRUE(isNear(onRing(image, 0.05), VantorTheme::cyan()));
    EXPECT_TRUE(isNear(onRing(image, 0.2), VantorTheme::cyan()));
    EXPECT_TRUE(isNear(onRing(image, 0.35), track(ColorScheme::dark)));
    EXPECT_TRUE(isNear(onRing(image, 0.9), track(ColorScheme::dark)));
}

TEST(RingGauge, HasRoundEnds) {
    // Half a line's width beyond both ends of the arc.
    const double cap = (lineWidth / 2 - 2) / ((side - lineWidth) * std::numbers::pi);
    const QImage image = drawn(0.25);
    EXPECT_TRUE(isNear(onRing(image, 1 - cap), VantorTheme::cyan()));
    EXPECT_TRUE(isNear(onRing(image, 0.25 + cap), VantorTheme::cyan()));
}

TEST(RingGauge, KeepsWithinItsBounds) {
    RingGaugeView view(gaugeOf(1));
    EXPECT_EQ(view.sizeHint(), QSize(126, 126));
    const QImage image = rendered(view, view.sizeHint());
    EXPECT_TRUE(isNear(colorAt(image, side / 2, 1), VantorTheme::cyan()));
    EXPECT_TRUE(isNear(colorAt(image, side / 2, lineWidth - 1.5), VantorTheme::cyan()));
    EXPECT_EQ(colorAt(image, side / 2, lineWidth + 2).alpha(), 0);
    EXPECT_EQ(colorAt(image, 1, 1).alpha(), 0);
}

TEST(RingGauge, ItsTrackFollowsTheScheme) {
    EXPECT_TRUE(isNear(onRing(drawn(0, ColorScheme::light), 0.5), track(ColorScheme::light)));
}

TEST(RingGauge, IsOneElementThatSaysDetailAndTitle) {
    const RingGaugeView view(gaugeOf(0.42));
    EXPECT_EQ(utf8(view.accessibleLabel()), "CPU Load");
    EXPECT_EQ(utf8(view.accessibleValueText()), "42%");
    EXPECT_EQ(view.accessibleRole(), QAccessible::ProgressBar);
    EXPECT_TRUE(view.children().isEmpty());
}

}  // namespace
}  // namespace vantor::ring_gauge_test
