#include "app/qt_application_appearance.h"

#include <QApplication>
#include <QPalette>

#include <utility>

#include "app/window/window_frames.h"
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

/// With the mark that colorScheme knows it by: not even placeholders are faint.
QPalette highContrast(const Tones& tones) {
    QPalette palette = paletteOf(tones);
    palette.setColor(QPalette::PlaceholderText, tones.text);
    palette.setColor(QPalette::Link, tones.text);
    return palette;
}

QPalette ownPalette(bool isDark, bool hasHighContrast) {
    const QColor faintOnBlack(190, 190, 190);
    const QColor faintOnWhite(65, 65, 65);
    if (isDark) {
        return hasHighContrast
                   ? highContrast({Qt::black, Qt::black, QColor(28, 28, 28), Qt::white,
                                   faintOnBlack, Qt::black})
                   : paletteOf({QColor(14, 17, 24), QColor(20, 23, 31), QColor(36, 40, 50),
                                QColor(235, 237, 242), QColor(128, 133, 145), QColor(30, 34, 44)});
    }
    return hasHighContrast
               ? highContrast({Qt::white, Qt::white, QColor(232, 232, 232), Qt::black, faintOnWhite,
                               Qt::white})
               : paletteOf({QColor(240, 243, 250), QColor(255, 255, 255), QColor(230, 234, 242),
                            QColor(28, 30, 36), QColor(120, 125, 136), QColor(255, 255, 255)});
}

}  // namespace

QtApplicationAppearance::QtApplicationAppearance(std::shared_ptr<DesktopAppearance> desktop)
    : desktop_(std::move(desktop)) {
    if (!desktop_) return;
    look_ = desktop_->look().value();
    observation_ = desktop_->look().observe([this](const DesktopLook& look) {
        look_ = look;
        apply();
    });
}

void QtApplicationAppearance::followSystem() {
    choose(Appearance::system);
}

void QtApplicationAppearance::forceDark() {
    choose(Appearance::dark);
}

void QtApplicationAppearance::forceLight() {
    choose(Appearance::light);
}

void QtApplicationAppearance::choose(Appearance choice) {
    choice_ = choice;
    apply();
}

void QtApplicationAppearance::apply() const {
    if (!choice_) return;
    setPalette(*choice_);
    renewWindowFrames();
}

void QtApplicationAppearance::setPalette(Appearance choice) const {
    using Scheme = DesktopLook::Scheme;
    const bool isSystem = choice == Appearance::system;
    const bool hasHighContrast = look_.hasHighContrast;
    bool isDark = isSystem ? look_.scheme == Scheme::dark : choice == Appearance::dark;
    if (isSystem && look_.scheme == Scheme::unknown) {
        QApplication::setPalette(QPalette());  // no palette of ours: the toolkit's, now and later
        if (!hasHighContrast) return;
        isDark = vantor::isDark(colorScheme(QApplication::palette()));
    }
    QApplication::setPalette(ownPalette(isDark, hasHighContrast));
}

}  // namespace vantor
