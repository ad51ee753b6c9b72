#include <gtest/gtest.h>

#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"

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

}  // namespace
}  // namespace vantor::wayland_test
