#include "ui/drawing/path_data.h"

#include <gtest/gtest.h>

namespace vantor::path_data_test {
namespace {

QPointF endOf(std::string_view data) {
    const auto path = pathOfData(data);
    return path ? path->currentPosition() : QPointF(-1, -1);
}

TEST(PathData, GoesToPlacesAndByWays) {
    EXPECT_EQ(endOf("M3 4"), QPointF(3, 4));
    EXPECT_EQ(endOf("M3,4 L 5 6"), QPointF(5, 6));
    EXPECT_EQ(endOf("M3 4l5 6"), QPointF(8, 10));
    EXPECT_EQ(endOf("M3 4h5v6"), QPointF(8, 10));
    EXPECT_EQ(endOf("M3 4H5V6"), QPointF(5, 6));
    EXPECT_EQ(endOf("M1 1c1 0 2 0 3 4"), QPointF(4, 5));
    EXPECT_EQ(endOf("M1 1C1 0 2 0 3 4"), QPointF(3, 4));
}

TEST(PathData, NumbersNeedNoSpaceWhereNoneCanBeMeant) {
    EXPECT_EQ(endOf("M1-2.5.5.5l.25-.5"), QPointF(0.75, 0));
}

TEST(PathData, FiguresAfterAMoveAreLinesAndGoOnWithTheLastCommand) {
    const auto path = pathOfData("m1 1 2 0 0 2");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->elementCount(), 3);
    EXPECT_TRUE(path->elementAt(2).isLineTo());
    EXPECT_EQ(path->currentPosition(), QPointF(3, 3));
}

TEST(PathData, AClosedPathGoesBackToItsBeginning) {
    EXPECT_EQ(endOf("M1 2h3v3z"), QPointF(1, 2));
    EXPECT_EQ(endOf("M1 2h3v3zl1 1"), QPointF(2, 3));
}

TEST(PathData, AnArcTakesTheWayRoundThatItsFlagsSay) {
    // A quarter from the left to the top of the circle around (5, 5).
    const QRectF small = pathOfData("M0 5a5 5 0 0 1 5-5")->boundingRect();
    EXPECT_NEAR(small.right(), 5, 1e-3);
    EXPECT_NEAR(small.bottom(), 5, 1e-3);
    const QRectF around = pathOfData("M0 5a5 5 0 1 1 10 0a5 5 0 0 1-10 0")->boundingRect();
    EXPECT_NEAR(around.top(), 0, 1e-3);
    EXPECT_NEAR(around.bottom(), 10, 1e-3);
    // The other three quarters, the other way round.
    const QRectF large = pathOfData("M0 5A5 5 0 1 0 5 0")->boundingRect();
    EXPECT_NEAR(large.right(), 10, 1e-2);
    EXPECT_NEAR(large.bottom(), 10, 1e-2);
    // The same flags of a circle that lies elsewhere: around (0, 0).
    const QRectF mirrored = pathOfData("M0 5a5 5 0 0 0 5-5")->boundingRect();
    EXPECT_NEAR(mirrored.left(), 0, 1e-3);
    EXPECT_NEAR(mirrored.top(), 0, 1e-3);
    EXPECT_NEAR(pathOfData("M0 5a5 5 0 0 0 5-5")->pointAtPercent(0.5).x(), 3.5355, 1e-2);
}

TEST(PathData, AnArcOfTooSmallARadiusIsAHalfCircleBetweenItsEnds) {
    const QRectF half = pathOfData("M0 0a1 1 0 0 1 10 0")->boundingRect();
    EXPECT_NEAR(half.top(), -5, 1e-3);
    EXPECT_NEAR(half.width(), 10, 1e-3);
}

TEST(PathData, AnArcWithoutARadiusIsALineAndOneWithoutAWayIsNothing) {
    EXPECT_EQ(pathOfData("M0 0a0 5 0 0 1 3 4")->length(), 5);
    EXPECT_EQ(pathOfData("M2 2a5 5 0 0 1 0 0")->length(), 0);
}

TEST(PathData, FlagsMayStandRightBeforeWhatFollows) {
    EXPECT_EQ(endOf("M0 5a5 5 0 015-5"), QPointF(5, 0));
}

TEST(PathData, AnythingElseIsNoPath) {
    for (const char* data : {"M", "M1", "M1 2 3", "?", "M1 1q1 1 2 2", "M0 0a5 5 30 0 1 3 3",
                             "M0 0a5 5 0 2 1 3 3", "M0 0z3 3", "1 2", "M0 0c1 1 2 2", "M0 0h"}) {
        EXPECT_FALSE(pathOfData(data)) << data;
    }
    EXPECT_TRUE(pathOfData("")->isEmpty());
}

}  // namespace
}  // namespace vantor::path_data_test
