#include "ui/typography.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>

#include "ui/other_font.h"

namespace vantor::typography_test {
namespace {

TEST(Typography, SizesAreThoseOfASystemFontOf13) {
    EXPECT_EQ(QFontInfo(Typography::font(13)).pixelSize(), 13);
    EXPECT_EQ(QFontInfo(Typography::font(26)).pixelSize(), 26);
    EXPECT_EQ(Typography::font(13, QFont::Bold).weight(), QFont::Bold);
    EXPECT_DOUBLE_EQ(Typography::lengthScale(), 1);
}

TEST(Typography, TextAndLengthsGrowWithTheSystemsFont) {
    const OtherFont twice(2.0);
    EXPECT_EQ(QFontInfo(Typography::font(13)).pixelSize(), 26);
    EXPECT_DOUBLE_EQ(Typography::lengthScale(), 2);
    EXPECT_EQ(Typography::scaled(126), 252);
}

TEST(Typography, LengthsDoNotShrinkWithASmallSystemFont) {
    const OtherFont half(0.5);
    EXPECT_DOUBLE_EQ(Typography::lengthScale(), 1);
    EXPECT_EQ(Typography::scaled(28), 28);
}

TEST(Typography, ASystemFontSizedInPixelsScalesAsWell) {
    QFont font = QApplication::font();
    font.setPixelSize(26);
    const OtherFont inPixels(font);
    EXPECT_EQ(Typography::font(6.5).pixelSize(), 13);
    EXPECT_EQ(Typography::font(0.1).pixelSize(), 1);
}

TEST(Typography, AllDigitsAreAsWideAsTheWidest) {
    const QFontMetricsF metrics(Typography::font(24, QFont::Bold));
    const double zero = Typography::digitTextWidth(QStringLiteral("0"), metrics);
    for (int digit = 1; digit <= 9; ++digit) {
        EXPECT_DOUBLE_EQ(Typography::digitTextWidth(QString::number(digit), metrics), zero);
    }
    EXPECT_DOUBLE_EQ(Typography::digitTextWidth(QStringLiteral("111.1%"), metrics),
                     Typography::digitTextWidth(QStringLiteral("888.8%"), metrics));
}

TEST(Typography, TextsThatDifferInDigitsOnlyAreEquallyWide) {
    EXPECT_TRUE(Typography::differInDigitsOnly(QStringLiteral("Updated 09:05:07"),
                                               QStringLiteral("Updated 23:58:41")));
    EXPECT_TRUE(Typography::differInDigitsOnly(QStringLiteral("٩٫٥%"), QStringLiteral("١٫٧%")));
    EXPECT_FALSE(Typography::differInDigitsOnly(QStringLiteral("9.9%"), QStringLiteral("10.1%")));
    EXPECT_FALSE(Typography::differInDigitsOnly(QStringLiteral("1 AM"), QStringLiteral("1 PM")));
    EXPECT_FALSE(Typography::differInDigitsOnly(QStringLiteral("1x"), QStringLiteral("x1")));
    EXPECT_TRUE(Typography::differInDigitsOnly(QString(), QString()));
}

}  // namespace
}  // namespace vantor::typography_test
