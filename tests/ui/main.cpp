#include <gmock/gmock.h>

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStyleFactory>

#include <cstdio>

#include "ui/components/accessible_views.h"
#include "ui/rendering.h"

/// Runs tests of widgets on any machine, with or without a screen, and always with the same look:
/// no platform, style, font, time zone or language of the surroundings reaches them.
namespace {

constexpr double pointsOf13Pixels = 9.75;  // at 96 dots per inch, the offscreen platform's own

bool pinFont() {
    const QString family = QStringLiteral("DejaVu Sans");
    QFont font(family);
    font.setPointSizeF(pointsOf13Pixels);
    // Hints and subpixels depend on how the machine is set up; outlines do not.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QApplication::setFont(font);
    return QFontDatabase::families().contains(family) && QFontInfo(font).pixelSize() == 13;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("TZ", "UTC");
    for (const char* const scale : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
        qunsetenv(scale);
    testing::InitGoogleMock(&argc, argv);
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    if (!pinFont()) {
        std::fputs(
            "These tests need the font DejaVu Sans at 13 pixels. Debian and Ubuntu have it in the "
            "package fonts-dejavu-core.\n",
            stderr);
        return 1;
    }
    QApplication::setPalette(vantor::paletteOf(vantor::ColorScheme::dark));
    vantor::installViewAccessibility();
    return RUN_ALL_TESTS();
}
