#include "ui/typography.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QImage>

#include "ui/rendering.h"

namespace vantor {
namespace {

/// Gives the program another font while it lives.
class OtherFont {
  public:
    explicit OtherFont(double factor) {
        QFont font = before_;
        font.setPointSizeF(before_.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    explicit OtherFont(const QFont& font) { QApplication::setFont(font); }
    OtherFont(const OtherFont&) = delete;
    OtherFont& operator=(const OtherFont&) = delete;
    ~OtherFont() { QApplication::setFont(before_); }

  private:
    const QFont before_ = QApplication::font();
};

QImage drawn(const QString& text, double width,
             void (*draw)(QPainter&, const QRectF&, const QString&)) {
    QImage image(400, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(Typography::font(Typography::body));
    painter.setPen(Qt::white);
    draw(painter, QRectF(0, 0, width, 40), text);
    return image;
}

QImage line(const QString& text, double width) {
    return drawn(text, width, [](QPainter& painter, const QRectF& area, const QString& content) {
        Typography::drawLine(painter, area, Qt::AlignLeft | Qt::AlignVCenter, content);
    });
}

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

TEST(Typography, DigitTextEndsWhereItsAlignmentSays) {
    const auto right = [](QPainter& painter, const QRectF& area, const QString& content) {
        Typography::drawDigitText(painter, area, Qt::AlignRight | Qt::AlignVCenter, content);
    };
    const QImage image = drawn(QStringLiteral("88"), 200, right);
    const double width = Typography::digitTextWidth(
        QStringLiteral("88"), QFontMetricsF(Typography::font(Typography::body)));
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 200 - width - 1, 40)), 0);
    EXPECT_GT(paintedPixels(image, QRectF(200 - width, 0, width, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(201, 0, 199, 40)), 0);
}

TEST(Typography, ALineThatDoesNotFitEndsInAnEllipsisWithinItsArea) {
    const QString longText(200, u'm');
    const QImage image = line(longText, 100);
    EXPECT_GT(paintedPixels(image, QRectF(0, 0, 100, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(101, 0, 299, 40)), 0);
    // The last painted thing is dots on the base line: nothing above it.
    EXPECT_EQ(paintedPixels(image, QRectF(91, 0, 9, 19)), 0);
}

TEST(Typography, ControlCharactersAreDrawnAsBlanks) {
    const QString dirty = QStringLiteral("a\nb\tc\u2028d\u2029e\u0001f");
    EXPECT_EQ(line(dirty, 400), line(QStringLiteral("a b c d e f"), 400));
}

TEST(Typography, AnEmptyLineAndAnAreaWithoutWidthDrawNothing) {
    const QRectF everywhere(0, 0, 400, 40);
    EXPECT_EQ(paintedPixels(line(QString(), 400), everywhere), 0);
    EXPECT_EQ(paintedPixels(line(QStringLiteral("text"), 0), everywhere), 0);
    EXPECT_EQ(paintedPixels(line(QStringLiteral("text"), -30), everywhere), 0);
}

TEST(Typography, AVeryLongLineIsCutBeforeItIsShaped) {
    const QString text = QStringLiteral("word ").repeated(200'000);
    EXPECT_GT(paintedPixels(line(text, 400), QRectF(0, 0, 400, 40)), 0);
}

}  // namespace
}  // namespace vantor
