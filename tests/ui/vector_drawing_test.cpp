#include "ui/drawing/vector_drawing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QResource>
#include <QSvgRenderer>

#include "ui/product_icon.h"
#include "ui/rendering.h"

namespace vantor::vector_drawing_test {
namespace {

QImage emptyImage(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// As the toolkit's own library for such files draws it.
QImage drawnByToolkit(const QString& resource, int side) {
    QImage image = emptyImage(side);
    QPainter painter(&image);
    QSvgRenderer(resource).render(&painter);
    return image;
}

// The library takes the corners of rectangles for whole percents of their sides.
constexpr int cornerTolerance = 56;

bool hasCorners(const QString& resource) {
    const QByteArray text = QResource(resource).uncompressedData();
    return text.contains("<rect");
}

int largestDifference(const QImage& one, const QImage& other) {
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            largest = std::max(largest, std::abs(a.alpha() - b.alpha()));
            if (a.alpha() < 250) continue;
            for (const int difference :
                 {a.red() - b.red(), a.green() - b.green(), a.blue() - b.blue()})
                largest = std::max(largest, std::abs(difference));
        }
    }
    return largest;
}

TEST(VectorDrawing, EverySymbolLooksAsTheToolkitsLibraryDrawsIt) {
    const QDir folder(QStringLiteral(":/symbols"));
    ASSERT_GE(folder.entryList().size(), 40);
    for (const QString& file : folder.entryList()) {
        const QString resource = folder.filePath(file);
        const auto drawing = VectorDrawing::ofResource(resource);
        ASSERT_TRUE(drawing) << utf8(file);
        // Where the first dash begins is left to who draws.
        if (!drawing->shapes().front().dashes.isEmpty()) continue;
        for (const int side : {13, 24, 96}) {
            QImage image = emptyImage(side);
            QPainter painter(&image);
            drawing->paint(painter, QRectF(0, 0, side, side), Qt::black, Qt::black);
            painter.end();
            EXPECT_LE(largestDifference(image, drawnByToolkit(resource, side)),
                      hasCorners(resource) ? cornerTolerance : 2)
                << utf8(file) << " at " << side;
        }
    }
}

TEST(VectorDrawing, TheProductsTileLooksAsTheToolkitsLibraryDrawsIt) {
    for (const int side : {16, 64, 128}) {
        const QImage tile = productIcon().pixmap(QSize(side, side), 1.0).toImage();
        EXPECT_LE(largestDifference(tile, drawnByToolkit(QStringLiteral(":/vantor.svg"), side)),
                  cornerTolerance)
            << side;
    }
}

TEST(VectorDrawing, ShapesArePaintedAsTheirTagOrTheOneAroundItSays) {
    const auto drawing = VectorDrawing::parse(
        R"(<svg viewBox="0 0 24 24" fill="none" stroke="#000" stroke-width="2">)"
        R"(<path d="M1 1h3"/><rect x="1" y="2" width="3" height="4" rx="1" fill="#000" )"
        R"(stroke="none"/><circle cx="3" cy="3" r="2" stroke-width=".5" stroke-dasharray="1 2"/></svg>)");
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->side(), 24);
    ASSERT_EQ(drawing->shapes().size(), 3u);
    EXPECT_FALSE(drawing->shapes()[0].isFilled);
    EXPECT_EQ(drawing->shapes()[0].strokeWidth, 2);
    EXPECT_TRUE(drawing->shapes()[1].isFilled);
    EXPECT_EQ(drawing->shapes()[1].strokeWidth, 0);
    EXPECT_EQ(drawing->shapes()[1].path.boundingRect(), QRectF(1, 2, 3, 4));
    EXPECT_EQ(drawing->shapes()[2].dashes, QList<double>({2, 4}));
}

TEST(VectorDrawing, WithoutAWordAShapeIsFilledAndHasNoStroke) {
    const auto drawing =
        VectorDrawing::parse(R"(<svg viewBox="0 0 8 8"><path d="M1 1h3v3z"/></svg>)");
    ASSERT_TRUE(drawing);
    EXPECT_TRUE(drawing->shapes()[0].isFilled);
    EXPECT_EQ(drawing->shapes()[0].strokeWidth, 0);
}

TEST(VectorDrawing, WhatItCannotDrawIsNoDrawing) {
    for (const char* text :
         {"", "nonsense", "<svg", "<svg viewBox=\"0 0 24\"></svg>", "<svg></svg>",
          "<svg viewBox=\"0 0 24 12\"></svg>", "<svg viewBox=\"0 0 24 24\"><text>a</text></svg>",
          "<svg viewBox=\"0 0 24 24\"><path d=\"M1\"/></svg>",
          "<svg viewBox=\"0 0 24 24\"><path/></svg>", "<path d=\"M1 1h2\"/>"}) {
        EXPECT_FALSE(VectorDrawing::parse(text)) << text;
    }
    EXPECT_FALSE(VectorDrawing::ofResource(QStringLiteral(":/symbols/none.svg")));
}

}  // namespace
}  // namespace vantor::vector_drawing_test
