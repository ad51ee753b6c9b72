#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "ui/drawing/line_raster.h"
#include "ui/drawing/ring_raster.h"
#include "ui/rendering.h"

namespace vantor::rasters_test {
namespace {

constexpr QSize size{160, 80};

QImage blank() {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

template <class Draw>
QImage drawn(Draw&& draw) {
    QImage image = blank();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return image;
}

/// How much two pictures differ: the mean over the pixels that either paints, 0 to 255.
double difference(const QImage& one, const QImage& other) {
    double sum = 0;
    int painted = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int a = qAlpha(one.pixel(x, y));
            const int b = qAlpha(other.pixel(x, y));
            if (a == 0 && b == 0) continue;
            ++painted;
            sum += std::abs(a - b);
        }
    }
    return painted == 0 ? 0 : sum / painted;
}

/// What the toolkit makes of the same line and the area below it.
QImage strokedByToolkit(const std::vector<QPointF>& points, const QRect& area,
                        const LineRaster::Style& style) {
    return drawn([&](QPainter& painter) {
        painter.setClipRect(area);
        painter.translate(area.topLeft());
        QPainterPath line(points.front());
        for (const QPointF& point : points)
            line.lineTo(point);
        QPainterPath below = line;
        below.lineTo(points.back().x(), area.height());
        below.lineTo(points.front().x(), area.height());
        below.closeSubpath();
        painter.fillPath(below, VantorTheme::faded(style.color, style.fillShare));
        painter.strokePath(
            line, QPen(style.color, style.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    });
}

class LineRasterLooks : public testing::TestWithParam<std::vector<double>> {};

TEST_P(LineRasterLooks, LikeTheToolkitsOwnStroke) {
    const QRect area(10, 5, 140, 62);
    for (const double width : {1.0, 2.0, 4.0}) {
        std::vector<QPointF> points;
        const double step = area.width() / static_cast<double>(GetParam().size() - 1);
        for (const double y : GetParam())
            points.emplace_back(step * static_cast<double>(points.size()), y);
        const LineRaster::Style style{VantorTheme::cyan(), width, 0.12};
        LineRaster raster;
        const QImage ours =
            drawn([&](QPainter& painter) { raster.draw(painter, area, points, style); });
        EXPECT_LT(difference(ours, strokedByToolkit(points, area, style)), 3) << width;
    }
}

std::vector<double> waves() {
    std::vector<double> values;
    for (int i = 0; i < 90; ++i)
        values.push_back(31 + 25 * std::sin(i * 0.9) * std::cos(i * 0.13));
    return values;
}

INSTANTIATE_TEST_SUITE_P(Lines, LineRasterLooks,
                         testing::Values(std::vector<double>{30, 30}, std::vector<double>{5, 60},
                                         std::vector<double>{60, 2, 60, 2, 60, 2, 60},
                                         std::vector<double>{61, 61, 1, 61, 61}, waves()));

TEST(LineRaster, KeepsWithinItsArea) {
    LineRaster raster;
    const QRect area(20, 10, 100, 40);
    const std::vector<QPointF> points{{0, 0}, {50, 40}, {100, -20}};
    const QImage image = drawn([&](QPainter& painter) {
        raster.draw(painter, area, points, {Qt::white, 6, 0.5});
    });
    EXPECT_GT(paintedPixels(image, area), 0);
    EXPECT_EQ(paintedPixels(image, {0, 0, 160, 10}), 0);
    EXPECT_EQ(paintedPixels(image, {0, 50, 160, 30}), 0);
    EXPECT_EQ(paintedPixels(image, {0, 0, 20, 80}), 0);
    EXPECT_EQ(paintedPixels(image, {120, 0, 40, 80}), 0);
}

TEST(LineRaster, NothingOfTheDrawingBeforeIsLeft) {
    LineRaster raster;
    const std::vector<QPointF> high{{0, 2}, {100, 2}};
    const std::vector<QPointF> low{{0, 35}, {60, 35}};
    const LineRaster::Style style{Qt::white, 2, 0.12};
    drawn([&](QPainter& painter) { raster.draw(painter, {0, 0, 100, 40}, high, style); });
    const auto drawLow = [&](LineRaster& with) {
        return drawn([&](QPainter& painter) { with.draw(painter, {0, 0, 60, 40}, low, style); });
    };
    LineRaster fresh;
    EXPECT_EQ(drawLow(raster), drawLow(fresh));
}

TEST(LineRaster, FewerThanTwoPointsAndNoAreaDrawNothing) {
    LineRaster raster;
    const std::vector<QPointF> one{{0, 5}};
    const std::vector<QPointF> two{{0, 5}, {9, 5}};
    const QImage image = drawn([&](QPainter& painter) {
        raster.draw(painter, {0, 0, 50, 50}, {}, {Qt::white, 2, 1});
        raster.draw(painter, {0, 0, 50, 50}, one, {Qt::white, 2, 1});
        raster.draw(painter, {0, 0, 0, 50}, two, {Qt::white, 2, 1});
        raster.draw(painter, {0, 0, 50, -3}, two, {Qt::white, 2, 1});
    });
    EXPECT_EQ(image, blank());
}

class RingRasterLooks : public testing::TestWithParam<double> {};

TEST_P(RingRasterLooks, LikeTheToolkitsOwnArcs) {
    const QColor track(255, 255, 255, 40);
    const QPointF center(80.5, 40);
    RingRaster raster;
    const QImage ours = drawn([&](QPainter& painter) {
        raster.draw(painter, {center, 30, 9, GetParam(), track, VantorTheme::pink()});
    });
    const QImage theirs = drawn([&](QPainter& painter) {
        const QRectF circle(center.x() - 30, center.y() - 30, 60, 60);
        painter.setPen(QPen(track, 9, Qt::SolidLine, Qt::FlatCap));
        painter.drawEllipse(circle);
        painter.setPen(QPen(VantorTheme::pink(), 9, Qt::SolidLine, Qt::RoundCap));
        if (GetParam() > 0) painter.drawArc(circle, 90 * 16, static_cast<int>(-GetParam() * 16));
    });
    EXPECT_LT(difference(ours, theirs), 3);
}

INSTANTIATE_TEST_SUITE_P(Sweeps, RingRasterLooks,
                         testing::Values(0, 1, 45, 90, 133, 179, 180, 181, 270, 359, 360));

}  // namespace
}  // namespace vantor::rasters_test
