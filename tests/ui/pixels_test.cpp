#include "ui/pixels.h"

#include <gtest/gtest.h>

#include <QImage>

#include <cmath>

#include "ui/rendering.h"

namespace vantor::pixels_test {
namespace {

/// A painter on a device with that many pixels to the point.
struct Canvas {
    explicit Canvas(double scale) : image(400, 400, QImage::Format_ARGB32_Premultiplied) {
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(scale);
        painter.begin(&image);
    }
    QImage image;
    QPainter painter;
};

class PixelsAt : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(Scales, PixelsAt, testing::Values(1.0, 1.25, 1.5, 2.0),
                         [](const auto& test) {
                             return "x" + std::to_string(std::lround(test.param * 100));
                         });

TEST_P(PixelsAt, SnappedEdgesLieOnDevicePixels) {
    Canvas canvas(GetParam());
    for (const QRectF& area :
         {QRectF(0.3, 0.7, 20.2, 10.9), QRectF(5, 7, 11, 13), QRectF(33.333, 66.667, 99.9, 0.6)}) {
        const QRectF snapped = Pixels::snapped(canvas.painter, area);
        for (const double edge :
             {snapped.left(), snapped.top(), snapped.right(), snapped.bottom()}) {
            const double device = edge * GetParam();
            EXPECT_NEAR(device, std::round(device), 1e-6);
        }
    }
}

TEST_P(PixelsAt, SnappedEdgesMoveByHalfADevicePixelAtMost) {
    Canvas canvas(GetParam());
    const QRectF area(0.3, 0.7, 20.2, 10.9);
    const QRectF snapped = Pixels::snapped(canvas.painter, area);
    const double most = 0.5 / GetParam() + 1e-9;
    EXPECT_LE(std::abs(snapped.left() - area.left()), most);
    EXPECT_LE(std::abs(snapped.top() - area.top()), most);
    EXPECT_LE(std::abs(snapped.right() - area.right()), most);
    EXPECT_LE(std::abs(snapped.bottom() - area.bottom()), most);
}

TEST_P(PixelsAt, AreasFilledAfterSnappingHaveNoBlurredEdge) {
    Canvas canvas(GetParam());
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.translate(0.4, 0.2);
    canvas.painter.fillRect(Pixels::snapped(canvas.painter, QRectF(10.3, 10.7, 20.2, 15.4)),
                            Qt::white);
    canvas.painter.end();
    const QRectF everywhere(0, 0, 400 / GetParam(), 400 / GetParam());
    EXPECT_GT(paintedPixels(canvas.image, everywhere), 0);
    EXPECT_EQ(paintedPixels(canvas.image, everywhere),
              pixelsLike(canvas.image, everywhere, Qt::white));
}

TEST_P(PixelsAt, NeighboursThatShareAnEdgeStillShareIt) {
    Canvas canvas(GetParam());
    const QRectF left = Pixels::snapped(canvas.painter, QRectF(0, 0, 10.37, 5));
    const QRectF right = Pixels::snapped(canvas.painter, QRectF(10.37, 0, 10, 5));
    EXPECT_NEAR(left.right(), right.left(), 1e-9);
}

TEST(Pixels, LineWidthsAreWholeDevicePixels) {
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(1).painter, 1), 1);
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(1.25).painter, 1), 1 / 1.25);
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(1.5).painter, 1), 2 / 1.5);
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(2).painter, 1), 1);
}

TEST(Pixels, NoLineIsThinnerThanADevicePixel) {
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(1).painter, 0.1), 1);
    EXPECT_DOUBLE_EQ(Pixels::snappedLineWidth(Canvas(2).painter, 0), 0.5);
}

TEST(Pixels, ATurnedPainterHasNoPixelsToSnapTo) {
    Canvas canvas(1);
    canvas.painter.rotate(30);
    EXPECT_EQ(Pixels::snapped(canvas.painter, QRectF(0.3, 0.3, 5.1, 5.1)),
              QRectF(0.3, 0.3, 5.1, 5.1));
}

}  // namespace
}  // namespace vantor::pixels_test
