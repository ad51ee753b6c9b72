#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

#include "support/event_patience.h"
#include "support/played_notifier_tray.h"

#include "e2e/assistive_client.h"
#include "e2e/desktop.h"

/// The program without any X server, on a compositor that has no screen.
namespace vantor::wayland_test {
namespace {

constexpr int patience = 15'000;

class OnWayland : public testing::Test {
  protected:
    void SetUp() override {
        environment_ = QProcessEnvironment::systemEnvironment();
        environment_.remove(QStringLiteral("DISPLAY"));
        const auto set = [this](const char* name, const QString& value) {
            environment_.insert(QString::fromLatin1(name), value);
        };
        set("XDG_RUNTIME_DIR", home_.path());
        set("HOME", home_.path());
        set("XDG_CONFIG_HOME", home_.filePath(QStringLiteral("config")));
        set("WAYLAND_DISPLAY", QStringLiteral("wayland-test"));
        set("QT_QPA_PLATFORM", QStringLiteral("wayland"));
        set("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", QStringLiteral("1"));
        startBus();
        compositor_.setProcessEnvironment(environment_);
        compositor_.setStandardErrorFile(QProcess::nullDevice());
        compositor_.start(QStringLiteral("weston"),
                          {QStringLiteral("--backend=headless-backend.so"),
                           QStringLiteral("--socket=wayland-test"), QStringLiteral("--width=1400"),
                           QStringLiteral("--height=900")});
        ASSERT_TRUE(compositor_.waitForStarted(patience)) << "no compositor";
        ASSERT_TRUE(eventually(
            [this] { return QFile::exists(home_.filePath(QStringLiteral("wayland-test"))); }));
    }

    void TearDown() override {
        for (QProcess* process : {&program_, &compositor_, &bus_}) {
            if (process->state() == QProcess::NotRunning) continue;
            process->kill();
            process->waitForFinished(patience);
        }
    }

    void start() {
        program_.setProcessEnvironment(environment_);
        program_.start(QStringLiteral(VANTOR_PROGRAM), QStringList());
        ASSERT_TRUE(program_.waitForStarted(patience));
    }

    /// What the gauge of the processor says; empty while there is none.
    QString load(const AssistiveClient& client) {
        const auto elements = client.walk(QStringLiteral("vantor"));
        const auto gauge =
            std::ranges::find(elements, QStringLiteral("CPU Load"), &AccessibleElement::name);
        return gauge == elements.end() ? QString() : gauge->description;
    }

    QTemporaryDir home_;
    QProcessEnvironment environment_;
    QProcess bus_;
    QProcess compositor_;
    QProcess program_;
    QString address_;

  private:
    void startBus() {
        bus_.setProcessEnvironment(environment_);
        bus_.setStandardErrorFile(QProcess::nullDevice());
        bus_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address=1")});
        ASSERT_TRUE(bus_.waitForReadyRead(patience)) << "no session bus";
        address_ = QString::fromLatin1(bus_.readLine()).trimmed();
        environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
    }
};

TEST_F(OnWayland, StartsAndShowsLiveFigures) {
    const AssistiveClient client(address_);
    ASSERT_TRUE(client.isConnected());
    start();
    EXPECT_TRUE(eventually([&] { return load(client).endsWith(u'%'); }, 30'000))
        << load(client).toStdString();
    EXPECT_FALSE(program_.waitForFinished(0)) << program_.exitCode();
}

TEST_F(OnWayland, ATrayThatComesLateHasTheItem) {
    const AssistiveClient client(address_);
    start();
    ASSERT_TRUE(eventually([&] { return load(client).endsWith(u'%'); }, 30'000));
    PlayedNotifierTray tray(address_);
    ASSERT_TRUE(handleEventsUntil([&] { return !tray.items().isEmpty(); }));
    EXPECT_EQ(tray.property(QStringLiteral("Title")).toString(), QStringLiteral("Vantor"));
    EXPECT_TRUE(tray.choose(QStringLiteral("Quit")));
    ASSERT_TRUE(program_.waitForFinished(patience));
    EXPECT_EQ(program_.exitCode(), 0);
}

}  // namespace
}  // namespace vantor::wayland_test
