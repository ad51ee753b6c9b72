#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>

#include <optional>

#include "support/event_patience.h"
#include "support/fake_settings_portal.h"
#include "ui/theme.h"

#include "e2e/program_fixture.h"

/// The theme "System" and a desktop whose portal, which the test plays, tells its look.
namespace vantor::appearance_test {
namespace {

const auto scheme = QStringLiteral("color-scheme");
const auto contrast = QStringLiteral("contrast");

class FollowedAppearance : public ProgramOnADesktop {
  protected:
    static constexpr int patience = 60'000;

    void SetUp() override {
        ProgramOnADesktop::SetUp();
        address_ = desktop_.startSessionBus();
        ASSERT_FALSE(address_.isEmpty()) << "no session bus";
    }
    void choose(const QByteArray& theme) {
        QFile settings(desktop_.settingsFile());
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write("[General]\nappearance=" + theme + '\n');
    }
    void startPortal(const FakeSettingsPortal::Look& look) { portal_.emplace(address_, look); }
    /// Answers the program until it shows live figures.
    void startAnswering() {
        program_.emplace(desktop_);
        ASSERT_TRUE(handleEventsUntil([this] { return portal_->asked() == 2; }, patience))
            << "nobody asked";
        ASSERT_TRUE(program_->waitForLiveData());
    }
    /// The window's ground between its left edge and the cards.
    QColor ground() {
        const QRect area = program_->windowArea();
        const QImage picture = desktop_.picture();
        const QPoint place = area.topLeft() + QPoint(6, area.height() / 2);
        return picture.rect().contains(place) ? picture.pixelColor(place) : QColor();
    }
    bool becomes(const std::function<bool(const QColor&)>& isSo) {
        return eventually([&] { return isSo(ground()); }, patience);
    }
    static bool isDark(const QColor& color) {
        return color.isValid() && color.lightness() < 40 && color != Qt::black;
    }
    static bool isLight(const QColor& color) {
        return color.isValid() && color.lightness() > 215 && color != Qt::white;
    }
    static bool isBlack(const QColor& color) { return color == Qt::black; }
    static bool isWhite(const QColor& color) { return color == Qt::white; }

    /// What window managers with the themes of GTK draw the frame in.
    QString frameVariant() {
        const QString said = desktop_.run(QStringLiteral("xprop"),
                                          {QStringLiteral("-name"), QStringLiteral("Vantor"),
                                           QStringLiteral("_GTK_THEME_VARIANT")});
        return said.contains(u'"') ? said.section(u'"', 1, 1) : QString();
    }

    QString address_;
    std::optional<FakeSettingsPortal> portal_;
};

TEST_F(FollowedAppearance, TheWindowsFrameIsDarkAndLightAsTheWindow) {
    choose("system");
    startPortal({{scheme, 1U}, {contrast, 0U}});
    startAnswering();
    EXPECT_TRUE(eventually([this] { return frameVariant() == u"dark"; }, patience));
    portal_->change(scheme, 2U);
    ASSERT_TRUE(becomes(isLight));
    EXPECT_TRUE(eventually([this] { return frameVariant().isEmpty(); }, patience));
    portal_->change(scheme, 1U);
    EXPECT_TRUE(eventually([this] { return frameVariant() == u"dark"; }, patience));
}

TEST_F(FollowedAppearance, AWindowThatOpensDarkHasADarkFrame) {
    choose("dark");
    start();
    EXPECT_EQ(frameVariant(), u"dark");
}

TEST_F(FollowedAppearance, SystemIsDarkAndLightAsTheDesktopAndRaisesItsContrast) {
    choose("system");
    startPortal({{scheme, 1U}, {contrast, 0U}});
    startAnswering();
    ASSERT_TRUE(becomes(isDark)) << ground().name().toStdString();
    QElapsedTimer clock;
    clock.start();
    portal_->change(scheme, 2U);
    ASSERT_TRUE(becomes(isLight)) << ground().name().toStdString();
    RecordProperty("MillisecondsToLight", static_cast<int>(clock.restart()));
    portal_->change(contrast, 1U);
    ASSERT_TRUE(becomes(isWhite)) << ground().name().toStdString();
    RecordProperty("MillisecondsToHighContrast", static_cast<int>(clock.restart()));
    portal_->change(scheme, 1U);
    ASSERT_TRUE(becomes(isBlack)) << ground().name().toStdString();
    portal_->change(contrast, 0U);
    EXPECT_TRUE(becomes(isDark)) << ground().name().toStdString();
}

TEST_F(FollowedAppearance, ADesktopWithoutAPortalHasTheToolkitsPaletteUntilOneComes) {
    choose("system");
    start();
    ASSERT_TRUE(becomes(isLight)) << ground().name().toStdString();
    startPortal({{scheme, 1U}, {contrast, 0U}});
    EXPECT_TRUE(becomes(isDark)) << ground().name().toStdString();
}

TEST_F(FollowedAppearance, AChosenThemeStaysAndTakesTheContrastAlone) {
    choose("dark");
    startPortal({{scheme, 2U}, {contrast, 0U}});
    startAnswering();
    EXPECT_TRUE(becomes(isDark));
    portal_->change(contrast, 1U);
    EXPECT_TRUE(becomes(isBlack)) << ground().name().toStdString();
}

}  // namespace
}  // namespace vantor::appearance_test
