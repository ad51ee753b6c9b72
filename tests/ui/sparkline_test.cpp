#include "ui/components/sparkline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "ui/rendering.h"

namespace vantor::sparkline_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Range = std::optional<std::pair<double, double>>;

constexpr std::pair<double, double> whole{0.0, 100.0};

std::vector<QPointF> points(const std::vector<double>& values, double width, double height,
                            Range range = std::nullopt) {
    return SparklineGeometry::make(values, width, height, range).points;
}

QImage drawn(std::vector<double> values, Range range = std::nullopt, QSize size = {102, 62}) {
    SparklineView view(QStringLiteral("history"), {std::move(values), VantorTheme::green(), range},
                       62);
    return rendered(view, size);
}

const QColor fill = VantorTheme::faded(VantorTheme::green(), 0.12);

TEST(SparklineGeometry, SpreadsThePointsOverTheWidthAndTheRangeOverTheHeight) {
    EXPECT_THAT(points({0, 50, 100, 25}, 90, 40, whole),
                ElementsAre(QPointF(0, 40), QPointF(30, 20), QPointF(60, 0), QPointF(90, 30)));
}

TEST(SparklineGeometry, WithoutARangeTheValuesOwnIsTheWhole) {
    EXPECT_THAT(points({3, 5, 4}, 20, 10),
                ElementsAre(QPointF(0, 10), QPointF(10, 0), QPointF(20, 5)));
}

TEST(SparklineGeometry, EqualValuesLieAlongTheBottom) {
    EXPECT_THAT(points({7, 7, 7, 7, 7}, 40, 30),
                ElementsAre(QPointF(0, 30), QPointF(10, 30), QPointF(20, 30), QPointF(30, 30),
                            QPointF(40, 30)));
}

TEST(SparklineGeometry, ValuesBeyondTheRangeLieOnItsEdges) {
    EXPECT_THAT(points({150, -20}, 10, 30, whole), ElementsAre(QPointF(0, 0), QPointF(10, 30)));
}

TEST(SparklineGeometry, ARangeWithoutWidthIsOneWide) {
    EXPECT_THAT(points({5, 5.5, 7}, 20, 10, std::pair{5.0, 5.0}),
                ElementsAre(QPointF(0, 10), QPointF(10, 5), QPointF(20, 0)));
}

TEST(SparklineGeometry, ASingleValueIsAPointAtTheStart) {
    EXPECT_THAT(points({40}, 50, 10, whole), ElementsAre(QPointF(0, 6)));
    EXPECT_THAT(points({40}, 50, 10), ElementsAre(QPointF(0, 10)));
}

TEST(SparklineGeometry, HasNoPointsWithoutValuesOrSpace) {
    EXPECT_THAT(points({}, 50, 10), IsEmpty());
    EXPECT_THAT(points({1, 2}, 0, 10), IsEmpty());
    EXPECT_THAT(points({1, 2}, 50, 0), IsEmpty());
    EXPECT_THAT(points({1, 2}, -1, 10), IsEmpty());
    const auto none = SparklineGeometry::make(std::vector{1.0, 2.0}, 0, 0, whole);
    EXPECT_THAT(none.points, IsEmpty());
}

TEST(Sparkline, EqualValuesAreALineAlongTheBottomEdge) {
    const QImage image = drawn({5, 5, 5, 5, 5});
    for (const double x : {5.0, 50.0, 95.0}) {
        EXPECT_TRUE(isNear(colorAt(image, x, 60.5), VantorTheme::green(), 40)) << x;
    }
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 102, 58)), 0);
}

TEST(Sparkline, AValueAboveTheRangeIsDrawnAtTheTopEdge) {
    const QImage image = drawn({150, 150}, whole);
    for (const double x : {5.0, 50.0, 95.0}) {
        EXPECT_TRUE(isNear(colorAt(image, x, 0.5), VantorTheme::green())) << x;
        EXPECT_TRUE(isNear(colorAt(image, x, 1.5), VantorTheme::green())) << x;
        EXPECT_TRUE(isNear(colorAt(image, x, 30), fill)) << x;
    }
}

TEST(Sparkline, LineAndFillMeetAtTheValue) {
    const QImage image = drawn({50, 50}, whole);
    EXPECT_TRUE(isNear(colorAt(image, 50, 30.5), VantorTheme::green()));
    EXPECT_TRUE(isNear(colorAt(image, 50, 31.5), VantorTheme::green()));
    EXPECT_EQ(colorAt(image, 50, 28.5).alpha(), 0);
    EXPECT_TRUE(isNear(colorAt(image, 50, 45), fill));
}

TEST(Sparkline, WithoutWidthOrHeightDrawsNothingAndDoesNotFail) {
    SparklineView view(QStringLiteral("history"), {{1, 2, 3}, VantorTheme::green(), whole}, 62);
    for (const QSize size : {QSize(0, 62), QSize(102, 0), QSize(2, 2), QSize(1, 1)}) {
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        view.resize(size);
        view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 200, 200)), 0) << size.width();
    }
}

TEST(Sparkline, WithoutValuesDrawsNothing) {
    EXPECT_EQ(paintedPixels(drawn({}), QRectF(0, 0, 102, 62)), 0);
}

TEST(Sparkline, ASingleValueDrawsNothingBeyondTheStart) {
    const QImage image = drawn({50}, whole);
    EXPECT_EQ(paintedPixels(image, QRectF(4, 0, 98, 62)), 0);
}

TEST(Sparkline, Is62HighAndAsWideAsItIsMade) {
    const SparklineView view(QStringLiteral("CPU history"), {}, 62);
    EXPECT_EQ(view.sizeHint().height(), 62);
    EXPECT_EQ(view.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

TEST(Sparkline, SaysItsLabelAndItsNewestValue) {
    SparklineView view(QStringLiteral("CPU history"), {}, 62);
    view.show(std::array{0.25, 0.5}, QStringLiteral("50%"));
    EXPECT_EQ(utf8(view.accessibleLabel()), "CPU history");
    EXPECT_EQ(utf8(view.accessibleValueText()), "50%");
    EXPECT_EQ(view.accessibleRole(), QAccessible::Chart);
    EXPECT_THAT(view.sparkline().values, ElementsAre(0.25, 0.5));
}

}  // namespace
}  // namespace vantor::sparkline_test
