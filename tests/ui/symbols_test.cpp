#include "ui/symbols.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "ui/rendering.h"

namespace vantor::symbols_test {
namespace {

/// The names of all symbols, as the resources have them.
QStringList resourceNames() {
    QStringList names;
    for (const QString& file : QDir(QStringLiteral(":/symbols")).entryList())
        names << file.chopped(4);
    return names;
}

/// Every text in the source of the user interface.
QSet<QString> textsInTheSource() {
    static const QRegularExpression literal(QStringLiteral("QStringLiteral\\(\"([^\"]*)\"\\)"));
    QSet<QString> texts;
    QDirIterator files(QStringLiteral(VANTOR_SOURCE_DIR "/src/ui"), {QStringLiteral("*.cpp")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        auto found = literal.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext())
            texts << found.next().captured(1);
    }
    return texts;
}

QImage drawn(const QString& name, const QRectF& area, const QColor& color, double scale = 1) {
    QImage image(static_cast<int>(64 * scale), static_cast<int>(64 * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Symbols::draw(painter, area, name, color);
    return image;
}

const QRectF everywhere(0, 0, 64, 64);

TEST(Symbols, EveryNameInTheSourceHasADrawing) {
    // A symbol's name is what no sentence is: lower-case words joined by dots.
    static const QRegularExpression dotted(QStringLiteral("^[a-z]+(\\.[a-z]+)+$"));
    int names = 0;
    for (const QString& text : textsInTheSource()) {
        if (!dotted.match(text).hasMatch()) continue;
        ++names;
        EXPECT_TRUE(Symbols::exists(text)) << utf8(text);
    }
    EXPECT_GE(names, 6);
    for (const char16_t* const word : {u"cpu", u"power", u"app"}) {
        EXPECT_TRUE(textsInTheSource().contains(QString::fromUtf16(word)));
        EXPECT_TRUE(Symbols::exists(QString::fromUtf16(word)));
    }
}

TEST(Symbols, EveryDrawingIsNamedInTheSource) {
    for (const QString& name : resourceNames()) {
        EXPECT_TRUE(textsInTheSource().contains(name)) << utf8(name) << " is never drawn";
    }
}

TEST(Symbols, EveryDrawingPaintsInTheColourAskedForAndNoOther) {
    ASSERT_GE(resourceNames().size(), 10);
    for (const QString& name : resourceNames()) {
        const QImage image = drawn(name, everywhere, VantorTheme::orange());
        EXPECT_GT(pixelsLike(image, everywhere, VantorTheme::orange()), 40) << utf8(name);
        EXPECT_LT(paintedPixels(image, everywhere), 64 * 64 * 3 / 4) << utf8(name);
    }
}

TEST(Symbols, KeepWithinTheMiddleOfTheirArea) {
    const QImage image = drawn(QStringLiteral("cpu"), QRectF(10, 20, 40, 20), VantorTheme::cyan());
    EXPECT_GT(paintedPixels(image, QRectF(20, 20, 20, 20)), 0);
    EXPECT_EQ(paintedPixels(image, everywhere), paintedPixels(image, QRectF(20, 20, 20, 20)));
}

TEST(Symbols, AreDrawnAtTheResolutionOfTheDevice) {
    const QImage fine = drawn(QStringLiteral("cpu"), everywhere, VantorTheme::cyan(), 2);
    const QImage coarse = drawn(QStringLiteral("cpu"), everywhere, VantorTheme::cyan(), 1);
    const int full = pixelsLike(fine, everywhere, VantorTheme::cyan());
    // Edges are blurred over one device pixel: at twice the resolution less of the drawing is edge.
    EXPECT_GT(full, 3 * pixelsLike(coarse, everywhere, VantorTheme::cyan()));
}

TEST(Symbols, AnUnknownNameAndAnEmptyAreaDrawNothing) {
    EXPECT_FALSE(Symbols::exists(QStringLiteral("no.such.symbol")));
    EXPECT_EQ(
        paintedPixels(drawn(QStringLiteral("no.such.symbol"), everywhere, Qt::white), everywhere),
        0);
    EXPECT_EQ(paintedPixels(drawn(QStringLiteral("cpu"), QRectF(), Qt::white), everywhere), 0);
    EXPECT_EQ(
        paintedPixels(drawn(QStringLiteral("cpu"), QRectF(0, 0, -5, 9), Qt::white), everywhere), 0);
}

TEST(Symbols, TranslucentColoursStayTranslucent) {
    const QColor faint = VantorTheme::faded(VantorTheme::green(), 0.5);
    EXPECT_GT(pixelsLike(drawn(QStringLiteral("cpu"), everywhere, faint), everywhere, faint), 40);
}

}  // namespace
}  // namespace vantor::symbols_test
