#include <gtest/gtest.h>

#include <algorithm>

#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"
#include "support/fake_settings_portal.h"

#include "e2e/assistive_client.h"
#include "e2e/wayland_fixture.h"

/// The program without any X server, on a compositor that has no screen.
namespace vantor::wayland_test {
namespace {

TEST_F(OnWayland, StartsAndShowsLiveFigures) {
    const AssistiveClient client(address_);
    ASSERT_TRUE(client.isConnected());
    start();
    EXPECT_TRUE(eventually([&] { return load(client).endsWith(u'%'); }, 30'000))
        << load(client).toStdString();
    EXPECT_FALSE(program_.waitForFinished(0)) << program_.exitCode();
}

TEST_F(OnWayland, TheDesktopKnowsItsWindowByTheNameOfItsDesktopFile) {
    QByteArray said;
    environment_.insert(QStringLiteral("WAYLAND_DEBUG"), QStringLiteral("client"));
    start();
    const auto isNamed = [&] {
        program_.waitForReadyRead(100);
        said += program_.readAllStandardError();
        return said.contains("set_app_id(\"com.kestrone.Vantor\")");
    };
    EXPECT_TRUE(eventually(isNamed, 30'000));
    EXPECT_EQ(said.count("set_app_id("), said.count("set_app_id(\"com.kestrone.Vantor\")"));
}

TEST_F(OnWayland, ATrayThatComesLateHasTheItem) {
    const AssistiveClient client(address_);
    start();
    ASSERT_TRUE(eventually([&] { return load(client).endsWith(u'%'); }, 30'000));
    FakeNotifierTray tray(address_);
    ASSERT_TRUE(handleEventsUntil([&] { return !tray.items().isEmpty(); }));
    EXPECT_EQ(tray.property(QStringLiteral("Title")).toString(), QStringLiteral("Vantor"));
    EXPECT_TRUE(tray.choose(QStringLiteral("Quit")));
    ASSERT_TRUE(program_.waitForFinished(patience));
    EXPECT_EQ(program_.exitCode(), 0);
}

/// The area in which two pictures differ, below the compositor's panel with its clock.
QRect changedArea(const QImage& before, const QImage& after) {
    constexpr int panelHeight = 32;
    QRect area;
    for (int y = panelHeight; y < std::min(before.height(), after.height()); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y)) area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

TEST_F(OnWayland, TheWindowsFrameFollowsTheThemeWithTheWindow) {
    const AssistiveClient client(address_);
    const auto scheme = QStringLiteral("color-scheme");
    FakeSettingsPortal portal(address_, {{scheme, 2U}, {QStringLiteral("contrast"), 0U}});
    ASSERT_TRUE(QDir(home_.path()).mkpath(QStringLiteral("config/vantor")));
    QFile settings(home_.filePath(QStringLiteral("config/vantor/settings.ini")));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nappearance=system\n");
    settings.close();
    const QImage empty = picture();
    ASSERT_FALSE(empty.isNull());
    start();
    ASSERT_TRUE(handleEventsUntil([&] { return portal.asked() == 2; }));
    ASSERT_TRUE(eventually([&] { return load(client).endsWith(u'%'); }, 30'000));
    // Between the icon and the title.
    QRect window;
    const auto frame = [&] {
        const QImage now = picture();
        window = changedArea(empty, now);
        return now.pixelColor(window.topLeft() + QPoint(window.width() / 4, 15));
    };
    const auto isLight = [&] { return frame().lightness() > 215; };
    const auto isDark = [&] { return frame().lightness() < 40; };
    EXPECT_TRUE(eventually(isLight, patience)) << frame().name().toStdString();
    const QRect before = window;
    portal.change(scheme, 1U);
    EXPECT_TRUE(eventually(isDark, patience)) << frame().name().toStdString();
    EXPECT_EQ(window, before) << "it jumps";
    portal.change(scheme, 2U);
    EXPECT_TRUE(eventually(isLight, patience)) << frame().name().toStdString();
    EXPECT_EQ(window, before) << "it jumps";
}

}  // namespace
}  // namespace vantor::wayland_test
