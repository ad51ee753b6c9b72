#include "ui/components/usage_bar.h"

#include <gtest/gtest.h>

#include <limits>

#include "ui/rendering.h"

namespace vantor::usage_bar_test {
namespace {

constexpr QRectF bounds{0, 0, 200, 8};
constexpr QSize size{200, 8};

UsageBar bar(double value) {
    return {value, VantorTheme::blue(), 8};
}

QImage drawn(double value) {
    UsageBarView view(QStringLiteral("disk"), bar(value));
    return rendered(view, size);
}

TEST(UsageBarGeometry, FillHasItsShareOfTheWidth) {
    const auto geometry = UsageBarGeometry::make(bounds, 0.25);
    EXPECT_EQ(geometry.track, bounds);
    EXPECT_EQ(geometry.fill, QRectF(0, 0, 50, 8));
}

TEST(UsageBarGeometry, ValuesAreHeldWithinTheBar) {
    EXPECT_EQ(UsageBarGeometry::make(bounds, -0.3).fill.width(), 0);
    EXPECT_EQ(UsageBarGeometry::make(bounds, 0).fill.width(), 0);
    EXPECT_EQ(UsageBarGeometry::make(bounds, 1.4).fill, bounds);
    EXPECT_EQ(UsageBarGeometry::make(bounds, std::numeric_limits<double>::quiet_NaN()).fill.width(),
              0);
    EXPECT_EQ(UsageBarGeometry::make(bounds, std::numeric_limits<double>::infinity()).fill, bounds);
}

TEST(UsageBar, ANegativeValueDrawsOnlyTheTrack) {
    const QImage image = drawn(-0.5);
    const QColor track = VantorTheme::faded(VantorTheme::primaryLabel(ColorScheme::dark), 0.08);
    EXPECT_TRUE(isNear(colorAt(image, 100, 4), track));
    EXPECT_EQ(pixelsLike(image, bounds, VantorTheme::faded(VantorTheme::blue(), 0.92)), 0);
    EXPECT_GT(pixelsLike(image, bounds, track), 1300) << "the track is there";
}

TEST(UsageBar, FillLiesOnTheTrackFromTheLeadingEdge) {
    const QImage image = drawn(0.5);
    EXPECT_GT(colorAt(image, 50, 4).alphaF(), 0.9f);
    EXPECT_LT(colorAt(image, 150, 4).alphaF(), 0.2f);
}

TEST(UsageBar, TellsItsShareAsText) {
    const UsageBarView view(QStringLiteral("disk"), bar(0.456));
    EXPECT_EQ(utf8(view.accessibleLabel()), "disk");
    EXPECT_EQ(utf8(view.accessibleValueText()), "46%");
}

}  // namespace
}  // namespace vantor::usage_bar_test
