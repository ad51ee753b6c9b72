#include "app/qt_application_appearance.h"

#include <QApplication>
#include <QPalette>

#include "ui/theme.h"

namespace vantor {

namespace {

struct Tones {
    QColor window, base, button, text, faint, tip;
};

QPalette paletteOf(const Tones& tones) {
    QPalette palette(tones.button, tones.window);
    palette.setColor(QPalette::Window, tones.window);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.window);
    palette.setColor(QPalette::Button, tones.button);
    palette.setColor(QPalette::ToolTipBase, tones.tip);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, tones.text);
        palette.setColor(QPalette::Disabled, role, tones.faint);
    }
    palette.setColor(QPalette::PlaceholderText, tones.faint);
    palette.setColor(QPalette::Highlight, VantorTheme::blue());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, VantorTheme::blue());
    return palette;
}

}  // namespace

void QtApplicationAppearance::followSystem() {
    QApplication::setPalette(QPalette());  // no palette of ours: the desktop's, now and later
}

void QtApplicationAppearance::forceDark() {
    QApplication::setPalette(
        paletteOf({QColor(14, 17, 24), QColor(20, 23, 31), QColor(36, 40, 50),
                   QColor(235, 237, 242), QColor(128, 133, 145), QColor(30, 34, 44)}));
}

void QtApplicationAppearance::forceLight() {
    QApplication::setPalette(
        paletteOf({QColor(240, 243, 250), QColor(255, 255, 255), QColor(230, 234, 242),
                   QColor(28, 30, 36), QColor(120, 125, 136), QColor(255, 255, 255)}));
}

}  // namespace vantor
