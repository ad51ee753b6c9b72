#include "ui/drawing/glyph_run_cache.h"

#include <gtest/gtest.h>

#include <QImage>

#include "ui/other_font.h"
#include "ui/rendering.h"

namespace vantor::glyph_run_cache_test {
namespace {

constexpr TextStyle plain{Typography::body};

QImage drawn(const QString& text, double width,
             void (*draw)(QPainter&, const QRectF&, const QString&)) {
    QImage image(400, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    draw(painter, QRectF(0, 0, width, 40), text);
    return image;
}

QImage line(const QString& text, double width) {
    return drawn(text, width, [](QPainter& painter, const QRectF& area, const QString& content) {
        GlyphRunCache().drawLine(painter, plain, area, Qt::AlignLeft | Qt::AlignVCenter, content);
    });
}

TEST(GlyphRunCache, FiguresEndWhereItsAlignmentSays) {
    const auto right = [](QPainter& painter, const QRectF& area, const QString& content) {
        GlyphRunCache().drawFigures(painter, plain, area, Qt::AlignRight | Qt::AlignVCenter,
                                    content);
    };
    const QImage image = drawn(QStringLiteral("88"), 200, right);
    const double width = GlyphRunCache().figuresWidth(plain, QStringLiteral("88"));
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 200 - width - 1, 40)), 0);
    EXPECT_GT(paintedPixels(image, QRectF(200 - width, 0, width, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(201, 0, 199, 40)), 0);
}

QImage figures(const QString& text) {
    return drawn(text, 400, [](QPainter& painter, const QRectF& area, const QString& content) {
        GlyphRunCache().drawFigures(painter, plain, area, Qt::AlignLeft | Qt::AlignVCenter,
                                    content);
    });
}

TEST(GlyphRunCache, DigitsAreEquallyWideInEveryScript) {
    for (const char16_t zero : {u'0', u'\u0660', u'\u06F0', u'\u0966'}) {
        GlyphRunCache shapes;
        const double width = shapes.figuresWidth(plain, QString(3, QChar(zero)));
        EXPECT_GT(width, 0);
        for (char16_t value = 1; value <= 9; ++value) {
            const QString number(3, QChar(static_cast<char16_t>(zero + value)));
            EXPECT_DOUBLE_EQ(shapes.figuresWidth(plain, number), width) << utf8(number);
            EXPECT_NEAR(Typography::digitTextWidth(number, QFontMetricsF(Typography::font(plain))),
                        width, 0.5)
                << utf8(number);
        }
    }
}

TEST(GlyphRunCache, ANumberAmongWordsFromTheRightIsDrawnRightOfThem) {
    // Arabic zeros are dots: what has much ink is the letter.
    const QString letter = QStringLiteral("\u0633");
    const double width = GlyphRunCache().figuresWidth(plain, letter);
    const int ink = paintedPixels(figures(letter), QRectF(0, 0, 400, 40));
    const QImage both = figures(QStringLiteral("\u0660\u0660\u0660\u0660 ") + letter);
    EXPECT_GE(paintedPixels(both, QRectF(0, 0, width + 1, 40)), ink * 4 / 5);
}

TEST(GlyphRunCache, ANumberReadsFromTheLeftWithItsSignAlsoInArabic) {
    const auto width = [](const QString& text) {
        return GlyphRunCache().figuresWidth(plain, text);
    };
    // One narrow digit and one wide one: at the left is the first.
    const QImage mixed = figures(QStringLiteral("\u0661\u0668"));
    const QImage first = figures(QStringLiteral("\u0661"));
    const int half = static_cast<int>(width(QStringLiteral("\u0661")));
    EXPECT_EQ(mixed.copy(0, 0, half, 40), first.copy(0, 0, half, 40));
}

TEST(GlyphRunCache, ALineThatDoesNotFitEndsInAnEllipsisWithinItsArea) {
    const QString longText(200, u'm');
    const QImage image = line(longText, 100);
    EXPECT_GT(paintedPixels(image, QRectF(0, 0, 100, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(101, 0, 299, 40)), 0);
    // The last painted thing is dots on the base line: nothing above it.
    EXPECT_EQ(paintedPixels(image, QRectF(91, 0, 9, 19)), 0);
}

TEST(GlyphRunCache, ControlCharactersAreDrawnSoThatTheyAreSeen) {
    const QString dirty = QStringLiteral("a\nb\tc\u2028d\u2029e\u0001f");
    EXPECT_EQ(line(dirty, 400), line(QStringLiteral("a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFDf"), 400));
}

TEST(GlyphRunCache, AnEmptyLineAndAnAreaWithoutWidthDrawNothing) {
    const QRectF everywhere(0, 0, 400, 40);
    EXPECT_EQ(paintedPixels(line(QString(), 400), everywhere), 0);
    EXPECT_EQ(paintedPixels(line(QStringLiteral("text"), 0), everywhere), 0);
    EXPECT_EQ(paintedPixels(line(QStringLiteral("text"), -30), everywhere), 0);
}

TEST(GlyphRunCache, AVeryLongLineIsCutBeforeItIsShaped) {
    const QString text = QStringLiteral("word ").repeated(200'000);
    EXPECT_GT(paintedPixels(line(text, 400), QRectF(0, 0, 400, 40)), 0);
}

TEST(GlyphRunCache, FiguresAreAsWideAsTheirSizeIsComputed) {
    GlyphRunCache shapes;
    for (const char* const text : {"88.8%", "1.25 MB/s", "Not published", "62 \u00b0C", "\u2014",
                                   "", "\u0661\u0662 \u05d0", "2 caf\u0065\u0301"}) {
        for (const TextStyle style : {plain, TextStyle{24, QFont::Bold}}) {
            const QString content = QString::fromUtf8(text);
            const double laidOut =
                Typography::digitTextWidth(content, QFontMetricsF(Typography::font(style)));
            EXPECT_NEAR(shapes.figuresWidth(style, content), laidOut, 0.5) << text;
        }
    }
}

TEST(GlyphRunCache, ANumberThatChangesMovesNothing) {
    GlyphRunCache shapes;
    const double width = shapes.figuresWidth(plain, QStringLiteral("00.0%"));
    for (int i = 0; i < 10; ++i) {
        const QString text = QStringLiteral("%1%1.%1%").arg(i);
        EXPECT_DOUBLE_EQ(shapes.figuresWidth(plain, text), width) << i;
    }
}

TEST(GlyphRunCache, WhatIsDrawnAgainLooksTheSame) {
    GlyphRunCache shapes;
    const auto draw = [&](const QString& text) {
        QImage image(200, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        shapes.drawLine(painter, plain, {0, 0, 90, 30}, Qt::AlignLeft, text);
        return image;
    };
    const QImage first = draw(QStringLiteral("a name that is too long to fit"));
    EXPECT_NE(first, draw(QStringLiteral("another one, just as long as it")));
    EXPECT_EQ(first, draw(QStringLiteral("a name that is too long to fit")));
}

TEST(GlyphRunCache, FollowsTheSystemsFont) {
    GlyphRunCache shapes;
    const QString text = QStringLiteral("Vantor");
    const double before = shapes.lineWidth(plain, text);
    {
        const OtherFont twice(2.0);
        EXPECT_NEAR(shapes.lineWidth(plain, text), 2 * before, 2);
        EXPECT_NEAR(shapes.height(plain), 2 * GlyphRunCache().height(TextStyle{6.5}), 60);
    }
    EXPECT_DOUBLE_EQ(shapes.lineWidth(plain, text), before);
}

TEST(GlyphRunCache, TextThatReadsFromTheRightEndsAtTheRightEdge) {
    const QString hebrew = QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd");
    const QImage image =
        drawn(hebrew, 200, [](QPainter& painter, const QRectF& area, const QString& content) {
            GlyphRunCache().drawLine(painter, plain, area, Qt::AlignRight | Qt::AlignVCenter,
                                     content);
        });
    const double width = GlyphRunCache().lineWidth(plain, hebrew);
    EXPECT_GT(width, 10);
    EXPECT_GT(paintedPixels(image, QRectF(200 - width - 1, 0, width + 2, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 200 - width - 2, 40)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(202, 0, 198, 40)), 0);
}

}  // namespace
}  // namespace vantor::glyph_run_cache_test
