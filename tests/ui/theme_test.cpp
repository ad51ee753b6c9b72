#include "ui/theme.h"

#include <gtest/gtest.h>

#include <QFormLayout>

#include <array>
#include <cmath>

#include "ui/cards/core_activity.h"
#include "ui/rendering.h"

namespace vantor::theme_test {
namespace {

constexpr std::array schemes{ColorScheme::dark, ColorScheme::light};

/// QColor keeps sixteen bits of each channel.
void expectColor(const QColor& color, double red, double green, double blue, double alpha = 1) {
    EXPECT_NEAR(color.redF(), red, 1e-4);
    EXPECT_NEAR(color.greenF(), green, 1e-4);
    EXPECT_NEAR(color.blueF(), blue, 1e-4);
    EXPECT_NEAR(color.alphaF(), alpha, 1e-4);
}

QColor over(const QColor& top, const QColor& background) {
    const float a = top.alphaF();
    return QColor::fromRgbF(top.redF() * a + background.redF() * (1 - a),
                            top.greenF() * a + background.greenF() * (1 - a),
                            top.blueF() * a + background.blueF() * (1 - a));
}

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// How much two opaque colours stand out from each other: 1 not at all, 21 as black and white.
double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// What is behind the text of a card: its background over every colour of the window's background.
std::array<QColor, 3> cardFrames(ColorScheme scheme) {
    const QColor card = scheme == ColorScheme::dark
                            ? QColor::fromRgbF(0.075f, 0.085f, 0.115f, 0.96f)
                            : QColor::fromRgbF(1, 1, 1, 0.9f);
    const auto stops = VantorTheme::background(scheme, QRectF(0, 0, 1, 1)).stops();
    return {over(card, stops.at(0).second), over(card, stops.at(1).second),
            over(card, stops.at(2).second)};
}

TEST(VantorTheme, AccentsAreTheAgreedColours) {
    expectColor(VantorTheme::cyan(), 0.15, 0.78, 1.0);
    expectColor(VantorTheme::blue(), 0.2, 0.46, 1.0);
    expectColor(VantorTheme::purple(), 0.68, 0.35, 1.0);
    expectColor(VantorTheme::pink(), 1.0, 0.28, 0.57);
    expectColor(VantorTheme::green(), 0.18, 0.88, 0.57);
    expectColor(VantorTheme::orange(), 1.0, 0.58, 0.22);
    expectColor(VantorTheme::red(), 1.0, 0.3, 0.31);
}

TEST(VantorTheme, DarkBackgroundRunsThroughThreeColours) {
    const auto stops = VantorTheme::background(ColorScheme::dark, QRectF(0, 0, 10, 10)).stops();
    ASSERT_EQ(stops.size(), 3);
    EXPECT_EQ(stops[0].first, 0);
    EXPECT_EQ(stops[1].first, 0.5);
    EXPECT_EQ(stops[2].first, 1);
    expectColor(stops[0].second, 0.035, 0.045, 0.07);
    expectColor(stops[1].second, 0.055, 0.04, 0.09);
    expectColor(stops[2].second, 0.03, 0.06, 0.075);
}

TEST(VantorTheme, LightBackgroundRunsThroughThreeColours) {
    const auto stops = VantorTheme::background(ColorScheme::light, QRectF(0, 0, 10, 10)).stops();
    ASSERT_EQ(stops.size(), 3);
    expectColor(stops[0].second, 0.9, 0.95, 0.99);
    expectColor(stops[1].second, 0.95, 0.92, 0.99);
    expectColor(stops[2].second, 0.91, 0.97, 0.96);
}

TEST(VantorTheme, BackgroundRunsFromTheTopLeadingToTheBottomTrailingCorner) {
    const auto gradient = VantorTheme::background(ColorScheme::dark, QRectF(3, 4, 100, 50));
    EXPECT_EQ(gradient.start(), QPointF(3, 4));
    EXPECT_EQ(gradient.finalStop(), QPointF(103, 54));
}

TEST(VantorTheme, FadedKeepsTheColourAndMultipliesItsOpacity) {
    expectColor(VantorTheme::faded(VantorTheme::cyan(), 0.18), 0.15, 0.78, 1.0, 0.18);
    expectColor(VantorTheme::faded(QColor::fromRgbF(1, 1, 1, 0.5f), 0.5), 1, 1, 1, 0.25);
}

TEST(VantorTheme, SmallTextCanBeReadOnACard) {
    for (const ColorScheme scheme : schemes) {
        for (const QColor& background : cardFrames(scheme)) {
            EXPECT_GE(contrast(over(VantorTheme::secondaryLabel(scheme), background), background),
                      4.5);
            EXPECT_GE(contrast(over(VantorTheme::primaryLabel(scheme), background), background), 7);
        }
    }
}

TEST(VantorTheme, WithHighContrastTextsAndWhatBoundsThemStandOut) {
    for (const ColorScheme scheme :
         {ColorScheme::highContrastDark, ColorScheme::highContrastLight}) {
        const QColor card = VantorTheme::card(scheme);
        EXPECT_EQ(card.alpha(), 255);
        for (const auto& stop : VantorTheme::background(scheme, QRectF(0, 0, 1, 1)).stops()) {
            EXPECT_EQ(stop.second, card) << "cards are told by their borders";
        }
        EXPECT_EQ(contrast(VantorTheme::primaryLabel(scheme), card), 21);
        EXPECT_GE(contrast(over(VantorTheme::secondaryLabel(scheme), card), card), 7);
        for (const double opacity : {0.02, 0.08, 0.16, 1.0}) {
            EXPECT_GE(contrast(over(VantorTheme::line(scheme, opacity), card), card), 3);
            EXPECT_GE(contrast(over(VantorTheme::track(scheme, opacity), card), card), 3);
        }
    }
}

TEST(VantorTheme, WithoutHighContrastLinesAndTracksAreAsFaintAsTold) {
    for (const ColorScheme scheme : schemes) {
        const QColor faint = VantorTheme::faded(VantorTheme::primaryLabel(scheme), 0.08);
        EXPECT_EQ(VantorTheme::line(scheme, 0.08), faint);
        EXPECT_EQ(VantorTheme::track(scheme, 0.08), faint);
    }
}

TEST(VantorTheme, HighContrastIsAPaletteOfBlackAndWhiteAlone) {
    QPalette palette;
    const auto schemeOf = [&](const QColor& ground, const QColor& text, const QColor& faint) {
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::PlaceholderText, faint);
        return colorScheme(palette);
    };
    EXPECT_EQ(schemeOf(Qt::black, Qt::white, Qt::white), ColorScheme::highContrastDark);
    EXPECT_EQ(schemeOf(Qt::white, Qt::black, Qt::black), ColorScheme::highContrastLight);
    EXPECT_EQ(schemeOf(Qt::white, Qt::black, QColor(0, 0, 0, 128)), ColorScheme::light)
        << "a toolkit's usual palette may be that plain";
    EXPECT_EQ(schemeOf(Qt::black, Qt::white, Qt::gray), ColorScheme::dark);
    EXPECT_EQ(schemeOf(QColor(1, 1, 1), Qt::white, Qt::white), ColorScheme::dark);
}

TEST(VantorTheme, SmallTextCanBeReadOnTheWindow) {
    for (const ColorScheme scheme : schemes) {
        for (const auto& stop : VantorTheme::background(scheme, QRectF(0, 0, 1, 1)).stops()) {
            const QColor& background = stop.second;
            EXPECT_GE(contrast(over(VantorTheme::secondaryLabel(scheme), background), background),
                      4.5);
        }
    }
}

TEST(VantorTheme, NumbersOfCoresCanBeReadHoweverBusyTheyAre) {
    for (const ColorScheme scheme : schemes) {
        for (const double usage : {0.0, 0.01, 0.25, 0.5, 0.75, 1.0}) {
            const QColor fill = CoreActivity::fill(usage);
            for (const QColor& card : cardFrames(scheme)) {
                const QColor background = over(fill, card);
                const QColor label = over(VantorTheme::labelOn(fill, scheme), background);
                EXPECT_GE(contrast(label, background), 4.5)
                    << usage << (scheme == ColorScheme::dark ? " dark" : " light");
            }
        }
    }
}

TEST(ColorScheme, FollowsThePaletteOfTheWidget) {
    QWidget widget;
    for (const ColorScheme scheme : schemes) {
        widget.setPalette(paletteOf(scheme));
        EXPECT_EQ(colorScheme(widget), scheme);
    }
}

TEST(ColorScheme, ParentsHandItDown) {
    QWidget parent;
    const QWidget child(&parent);
    parent.setPalette(paletteOf(ColorScheme::light));
    EXPECT_EQ(colorScheme(child), ColorScheme::light);
}

TEST(VantorForeground, SetsThePenToTheLabelOfTheScheme) {
    QImage image(1, 1, QImage::Format_ARGB32);
    QPainter painter(&image);
    vantorForeground(painter, VantorTheme::pink());
    EXPECT_EQ(painter.pen().color(), VantorTheme::pink());
    vantorPrimaryForeground(painter, ColorScheme::light);
    EXPECT_EQ(painter.pen().color(), VantorTheme::primaryLabel(ColorScheme::light));
    vantorSecondaryForeground(painter, ColorScheme::dark);
    EXPECT_EQ(painter.pen().color(), VantorTheme::secondaryLabel(ColorScheme::dark));
}

TEST(VantorBackground, FillsTheShapeAndNothingBesides) {
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QPainterPath shape;
    shape.addRect(5, 5, 10, 10);
    vantorBackground(painter, VantorTheme::red(), shape);
    painter.end();
    EXPECT_EQ(pixelsLike(image, QRectF(0, 0, 20, 20), VantorTheme::red()), 100);
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 20, 20)), 100);
}

TEST(VantorGroupedFormStyle, GivesTheRowsRoom) {
    QWidget owner;
    auto* form = std::make_unique<QFormLayout>(&owner).release();
    vantorGroupedFormStyle(*form);
    EXPECT_GT(form->verticalSpacing(), 0);
    EXPECT_EQ(form->fieldGrowthPolicy(), QFormLayout::ExpandingFieldsGrow);
}

}  // namespace
}  // namespace vantor::theme_test
