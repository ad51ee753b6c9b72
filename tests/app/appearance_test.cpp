#include <gtest/gtest.h>

#include <QApplication>

#include <memory>

#include "app/qt_application_appearance.h"
#include "ui/cards/cpu_card.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard_world.h"

namespace vantor::appearance_test {
namespace {

class AppearanceTest : public testing::Test {
  protected:
    QtApplicationAppearance appearance;
    QWidget window;

    void TearDown() override { QApplication::setPalette(paletteOf(ColorScheme::dark)); }
    static void expectReadable() {
        const QPalette palette = QApplication::palette();
        for (const auto& [text, background] :
             {std::pair{QPalette::WindowText, QPalette::Window},
              std::pair{QPalette::Text, QPalette::Base},
              std::pair{QPalette::ButtonText, QPalette::Button},
              std::pair{QPalette::ToolTipText, QPalette::ToolTipBase},
              std::pair{QPalette::HighlightedText, QPalette::Highlight}}) {
            const double difference =
                std::abs(palette.color(text).lightnessF() - palette.color(background).lightnessF());
            EXPECT_GT(difference, 0.35) << text;
        }
    }
};

TEST_F(AppearanceTest, DarkDressesEveryWidgetDark) {
    appearance.forceLight();
    appearance.forceDark();
    settleEvents();
    EXPECT_EQ(colorScheme(window), ColorScheme::dark);
    expectReadable();
}

TEST_F(AppearanceTest, LightDressesEveryWidgetLight) {
    appearance.forceLight();
    settleEvents();
    EXPECT_EQ(colorScheme(window), ColorScheme::light);
    expectReadable();
}

TEST_F(AppearanceTest, BothMarkWhatIsSelectedInOurBlue) {
    appearance.forceDark();
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), VantorTheme::blue());
    appearance.forceLight();
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), VantorTheme::blue());
}

TEST_F(AppearanceTest, FollowingTheSystemBringsItsOwnPaletteBack) {
    QApplication::setPalette(QPalette());  // the desktop's own
    const QPalette before = QApplication::palette();
    appearance.forceDark();
    ASSERT_NE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    appearance.followSystem();
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                            QPalette::Highlight}) {
        EXPECT_EQ(QApplication::palette().color(role), before.color(role)) << role;
    }
}

/// A desktop that says how programs should look.
struct ToldAppearance : DesktopAppearance {
    Published<DesktopLook>& look() override { return told; }
    Published<DesktopLook> told{DesktopLook{}};
};

class FollowedLook : public AppearanceTest {
  protected:
    using Scheme = DesktopLook::Scheme;

    ColorScheme shown(Scheme scheme, bool hasHighContrast = false) {
        desktop->told.set({scheme, hasHighContrast});
        settleEvents();
        expectReadable();
        return colorScheme(window);
    }
    const std::shared_ptr<ToldAppearance> desktop = std::make_shared<ToldAppearance>();
    QtApplicationAppearance followed{desktop};
};

TEST_F(FollowedLook, SystemIsAsTheDesktopSays) {
    followed.followSystem();
    EXPECT_EQ(shown(Scheme::dark), ColorScheme::dark);
    EXPECT_EQ(shown(Scheme::light), ColorScheme::light);
    EXPECT_EQ(shown(Scheme::dark, true), ColorScheme::highContrastDark);
    EXPECT_EQ(shown(Scheme::light, true), ColorScheme::highContrastLight);
}

TEST_F(FollowedLook, WhereTheDesktopSaysNothingSystemIsTheToolkits) {
    QApplication::setPalette(QPalette());
    const QPalette own = QApplication::palette();
    const ColorScheme usual = colorScheme(own);
    followed.followSystem();
    EXPECT_EQ(shown(Scheme::dark), ColorScheme::dark);
    EXPECT_EQ(shown(Scheme::unknown), usual);
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), own.color(QPalette::Base));
    EXPECT_EQ(shown(Scheme::unknown, true),
              isDark(usual) ? ColorScheme::highContrastDark : ColorScheme::highContrastLight);
}

TEST_F(FollowedLook, AChosenThemeStaysAndTakesTheContrastAlone) {
    followed.forceLight();
    EXPECT_EQ(shown(Scheme::dark), ColorScheme::light);
    EXPECT_EQ(shown(Scheme::dark, true), ColorScheme::highContrastLight);
    followed.forceDark();
    EXPECT_EQ(shown(Scheme::light, true), ColorScheme::highContrastDark);
    EXPECT_EQ(shown(Scheme::light), ColorScheme::dark);
}

TEST_F(FollowedLook, WhatIsKnownBeforeTheChoiceCounts) {
    desktop->told.set({Scheme::dark, true});
    followed.followSystem();
    settleEvents();
    EXPECT_EQ(colorScheme(window), ColorScheme::highContrastDark);
}

TEST_F(AppearanceTest, TheSettingChangesTheDashboardWhileItIsOpen) {
    DashboardWorld world;
    AppSettings settings(world.defaults, std::make_shared<QtApplicationAppearance>());
    world.open();
    EXPECT_EQ(colorScheme(world.view->card<CPUCardView>()), ColorScheme::dark);
    settings.setAppearance(Appearance::light);
    settleEvents();
    EXPECT_EQ(colorScheme(world.view->card<CPUCardView>()), ColorScheme::light);
    EXPECT_EQ(colorScheme(world.view->header().interval()), ColorScheme::light);
    settings.setAppearance(Appearance::dark);
    settleEvents();
    EXPECT_EQ(colorScheme(world.view->card<CPUCardView>()), ColorScheme::dark);
}

}  // namespace
}  // namespace vantor::appearance_test
