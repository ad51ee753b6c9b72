#include "ui/drawing/background.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "ui/components/card_chrome.h"
#include "ui/components/card_frame.h"
#include "ui/components/make_child.h"
#include "ui/drawing/background_view.h"
#include "ui/rendering.h"

namespace vantor::background_test {
namespace {

using Layer = Background::Layer;

/// The background as the toolkit's own gradient draws it.
QImage gradient(QSize size, ColorScheme scheme) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(image.rect(), VantorTheme::background(scheme, image.rect()));
    return image;
}

int largestDifference(const QImage& one, const QImage& other) {
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.red() - b.red()),
                                std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
        }
    }
    return largest;
}

class BackgroundInScheme : public testing::TestWithParam<ColorScheme> {};
INSTANTIATE_TEST_SUITE_P(Both, BackgroundInScheme,
                         testing::Values(ColorScheme::dark, ColorScheme::light));

TEST_P(BackgroundInScheme, IsTheThemesGradientInWindowsOfAnyShape) {
    for (const QSize size : {QSize(640, 410), QSize(300, 700), QSize(700, 31), QSize(33, 33)}) {
        Background background;
        background.fit(size, GetParam());
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        background.paint(painter, Layer::window, image.rect(), {});
        painter.end();
        EXPECT_LE(largestDifference(image, gradient(size, GetParam())), 1)
            << size.width() << "x" << size.height();
    }
}

TEST_P(BackgroundInScheme, BeginsWhereReadingBegins) {
    const QSize size(500, 333);
    Background background;
    background.fit(size, GetParam(), Qt::RightToLeft);
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    background.paint(painter, Layer::window, image.rect(), {});
    painter.end();
    const QImage mirrored = gradient(size, GetParam()).mirrored(true, false);
    EXPECT_LE(largestDifference(image, mirrored), 1);
    EXPECT_TRUE(isNear(background.color(Layer::window, {499, 0}), mirrored.pixelColor(499, 0), 1));
}

TEST_P(BackgroundInScheme, UnderACardItIsTheCardsColourOverTheGradient) {
    const QSize size(400, 300);
    Background background;
    background.fit(size, GetParam());
    const QImage below = gradient(size, GetParam());
    for (const QPoint place : {QPoint(0, 0), QPoint(200, 150), QPoint(399, 299), QPoint(10, 280)}) {
        const QColor expected =
            VantorTheme::over(VantorTheme::card(GetParam()), below.pixelColor(place));
        EXPECT_TRUE(isNear(background.color(Layer::card, place), expected, 1));
        EXPECT_TRUE(isNear(background.color(Layer::window, place), below.pixelColor(place), 1));
    }
}

TEST_P(BackgroundInScheme, IsTheSameInPartsAndAtOnce) {
    const QSize size(250, 190);
    Background background;
    background.fit(size, GetParam());
    const auto paint = [&](int step) {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        for (int y = 0; y < size.height(); y += step) {
            for (int x = 0; x < size.width(); x += step)
                background.paint(painter, Layer::card, {x, y, step, step}, {});
        }
        painter.end();
        return image;
    };
    EXPECT_EQ(paint(17), paint(1000));
}

TEST(Background, WhatLiesOutsideTheWindowIsNotPainted) {
    Background background;
    background.fit({100, 100}, ColorScheme::dark);
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    background.paint(painter, Layer::window, {-50, -50, 300, 300}, {20, 30});
    painter.end();
    EXPECT_EQ(paintedPixels(image, {0, 0, 200, 200}), 100 * 100);
    EXPECT_EQ(paintedPixels(image, {20, 30, 100, 100}), 100 * 100);
}

class PlainCard : public CardFrame {
  public:
    using CardFrame::CardFrame;

  protected:
    QColor borderColor() const override { return VantorTheme::faded(VantorTheme::pink(), 0.16); }
};

struct ScaledScheme {
    ColorScheme scheme;
    double scale;
};

class CardOnBackground : public testing::TestWithParam<ScaledScheme> {
  protected:
    static constexpr QSize window{360, 240};
    static constexpr QRect place{23, 31, 301, 177};

    /// The window as it is painted, from what the card knows of its background.
    static QImage painted() {
        BackgroundView view;
        auto* card = makeChild<PlainCard>(&view);
        card->setGeometry(place);
        QImage image = rendered(view, window, GetParam().scheme, GetParam().scale);
        return image.convertToFormat(QImage::Format_RGB32);
    }
    /// The same, blended from its layers one after the other.
    static QImage blended() {
        const QSize size = (QSizeF(window) * GetParam().scale).toSize();
        QImage image = gradient(size, GetParam().scheme);
        image.setDevicePixelRatio(GetParam().scale);
        QPainter painter(&image);
        CardChrome::paint(painter, place, GetParam().scheme,
                          VantorTheme::faded(VantorTheme::pink(), 0.16));
        return image;
    }
};
INSTANTIATE_TEST_SUITE_P(All, CardOnBackground,
                         testing::Values(ScaledScheme{ColorScheme::dark, 1},
                                         ScaledScheme{ColorScheme::light, 1},
                                         ScaledScheme{ColorScheme::dark, 1.25},
                                         ScaledScheme{ColorScheme::dark, 1.5},
                                         ScaledScheme{ColorScheme::light, 2}));

TEST_P(CardOnBackground, LooksAsIfItWereBlended) {
    // The corners' edges are blended in two ways that may round apart.
    EXPECT_LE(largestDifference(painted(), blended()), 4);
}

TEST(CardFrame, IsOpaqueOnlyWhereItKnowsItsGround) {
    BackgroundView view;
    auto* card = makeChild<PlainCard>(&view);
    card->ensurePolished();
    EXPECT_TRUE(card->testAttribute(Qt::WA_OpaquePaintEvent));
    PlainCard alone;
    alone.ensurePolished();
    EXPECT_FALSE(alone.testAttribute(Qt::WA_OpaquePaintEvent));
}

}  // namespace
}  // namespace vantor::background_test
