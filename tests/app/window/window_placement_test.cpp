#include "app/window/window_placement.h"

#include <gtest/gtest.h>

#include <ostream>

namespace vantor {

// What a failed comparison prints.
void PrintTo(const WindowPlacement& placement, std::ostream* out) {
    *out << placement.text();
}

}  // namespace vantor

namespace vantor::window_placement_test {
namespace {

constexpr QSize smallest{720, 560};
const QMargins edges{1, 24, 1, 3};
// Two screens side by side, the left one with a panel at its top.
const QRect left{0, 28, 1920, 1052};
const QRect right{1920, 0, 1280, 1024};

WindowPlacement at(int x, int y, int width = 1280, int height = 820) {
    return {QPoint(x, y), QSize(width, height), edges, false};
}

TEST(WindowPlacementText, ComesBackAsItWas) {
    WindowPlacement maximized = at(-1900, -20, 1, 32768);
    maximized.isMaximized = true;
    WindowPlacement unplaced = at(0, 0);
    unplaced.position.reset();
    for (const WindowPlacement& placement : {at(100, 80), maximized, unplaced})
        EXPECT_EQ(WindowPlacement::fromText(placement.text()), placement);
}

TEST(WindowPlacementText, IsALineForEyesToo) {
    EXPECT_EQ(at(100, -80).text(), "100 -80 1280 820 1 24 1 3 normal");
    WindowPlacement placement = at(0, 0);
    placement.position.reset();
    placement.isMaximized = true;
    EXPECT_EQ(placement.text(), "- - 1280 820 1 24 1 3 maximized");
}

TEST(WindowPlacementText, AnythingElseIsNoPlacement) {
    for (const std::string_view text : {"",
                                        " ",
                                        "100",
                                        "100 80 1280 820",
                                        "100 80 1280 820 1 24 1 3",
                                        "normal",
                                        "100 80 1280 820 1 24 1 3 Normal",
                                        "100 80 1280 820 1 24 1 3 normal ",
                                        " 100 80 1280 820 1 24 1 3 normal",
                                        "100  80 1280 820 1 24 1 3 normal",
                                        "100 80 1280 820 1 24 1 3 normal more",
                                        "100 80 1280 820 1 24 1 3 4 normal",
                                        "100 80 0 820 1 24 1 3 normal",
                                        "100 80 1280 -820 1 24 1 3 normal",
                                        "100 80 1280 32769 1 24 1 3 normal",
                                        "100 80 1280 820 -1 24 1 3 normal",
                                        "100 80 1280 820 1 513 1 3 normal",
                                        "65537 80 1280 820 1 24 1 3 normal",
                                        "100 -65537 1280 820 1 24 1 3 normal",
                                        "- 80 1280 820 1 24 1 3 normal",
                                        "100 - 1280 820 1 24 1 3 normal",
                                        "100.5 80 1280 820 1 24 1 3 normal",
                                        "1e2 80 1280 820 1 24 1 3 normal",
                                        "+100 80 1280 820 1 24 1 3 normal",
                                        "99999999999999999999 80 1280 820 1 24 1 3 normal"}) {
        EXPECT_EQ(WindowPlacement::fromText(text), std::nullopt) << '"' << text << '"';
    }
    EXPECT_EQ(WindowPlacement::fromText(std::string(1 << 20, ' ')), std::nullopt);
    EXPECT_EQ(WindowPlacement::fromText(std::string_view("100\0 80 1280 820 1 24 1 3 normal", 33)),
              std::nullopt);
}

TEST(WindowPlacementFit, WhatIsOnAScreenStaysThere) {
    for (const WindowPlacement& placement : {at(100, 80), at(1, 52), at(1921, 24, 720, 997)})
        EXPECT_EQ(placement.fittedTo({left, right}, smallest), placement);
}

TEST(WindowPlacementFit, AcrossTwoScreensStaysSo) {
    const WindowPlacement across = at(1500, 80, 800, 800);
    EXPECT_EQ(across.fittedTo({left, right}, smallest), across);
    EXPECT_EQ(across.fittedTo({left}, smallest), at(1119, 80, 800, 800)) << "one is gone";
}

TEST(WindowPlacementFit, OfAGoneScreenComesToTheNearestOne) {
    EXPECT_EQ(at(2000, 100).fittedTo({left}, smallest), at(1920 - 1280 - 1, 100));
    EXPECT_EQ(at(-3000, -2000).fittedTo({left, right}, smallest), at(1, 28 + 24));
    EXPECT_EQ(at(9000, 5000, 800, 600).fittedTo({left, right}, smallest),
              at(3200 - 800 - 1, 1024 - 600 - 3, 800, 600));
}

TEST(WindowPlacementFit, TheScreenThatShowsMostOfItCounts) {
    EXPECT_EQ(at(1800, -100, 800, 600).fittedTo({left, right}, smallest), at(1921, 24, 800, 600));
    EXPECT_EQ(at(1300, -100, 800, 600).fittedTo({left, right}, smallest),
              at(1920 - 800 - 1, 52, 800, 600));
}

TEST(WindowPlacementFit, ASmallerScreenMakesItSmaller) {
    EXPECT_EQ(at(100, 80).fittedTo({QRect(0, 0, 1024, 768)}, smallest),
              at(1, 24, 1024 - 2, 768 - 27));
}

TEST(WindowPlacementFit, AScreenUnderThePanelIsNotForIt) {
    EXPECT_EQ(at(100, 0).fittedTo({left}, smallest), at(100, 28 + 24))
        << "its title bar would be hidden";
}

TEST(WindowPlacementFit, NeverSmallerThanItsSmallestSizeAndThenItsCornerShows) {
    EXPECT_EQ(at(100, 80).fittedTo({QRect(0, 0, 640, 480)}, smallest), at(1, 24, 720, 560));
    EXPECT_EQ(at(100, 80, 10, 10).fittedTo({left}, smallest), at(100, 80, 720, 560));
}

TEST(WindowPlacementFit, WithoutAPositionTheSizeAloneIsFitted) {
    WindowPlacement unplaced = at(0, 0, 2000, 2000);
    unplaced.position.reset();
    WindowPlacement expected = at(0, 0, 1918, 1052 - 27);
    expected.position.reset();
    EXPECT_EQ(unplaced.fittedTo({left, right}, smallest), expected);
}

TEST(WindowPlacementFit, MaximisedItKeepsBeingSo) {
    WindowPlacement maximized = at(5000, 5000);
    maximized.isMaximized = true;
    const WindowPlacement fitted = maximized.fittedTo({left}, smallest);
    EXPECT_TRUE(fitted.isMaximized);
    EXPECT_TRUE(left.contains(QRect(*fitted.position, fitted.size)));
}

TEST(WindowPlacementFit, WithoutAnyScreenNothingIsKnown) {
    EXPECT_EQ(at(100, 80, 10, 10).fittedTo({}, smallest), at(100, 80, 720, 560));
}

TEST(WindowPlacementFit, TheFarthestPlacesDoNotOverflow) {
    for (const int x : {-65536, 65536}) {
        for (const int y : {-65536, 65536}) {
            const WindowPlacement fitted = at(x, y, 32768, 32768).fittedTo({left, right}, smallest);
            EXPECT_TRUE(left.contains(QRect(*fitted.position, fitted.size)) ||
                        right.contains(QRect(*fitted.position, fitted.size)));
        }
    }
}

}  // namespace
}  // namespace vantor::window_placement_test
