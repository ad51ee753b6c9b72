#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

#include "support/session_bus_config.h"

#include "e2e/assistive_client.h"
#include "e2e/desktop.h"

namespace vantor {

/// A compositor without a screen and without any X server, a session bus, and the program on it.
class OnWayland : public testing::Test {
  protected:
    static constexpr int patience = 15'000;

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
        compositor_.start(
            QStringLiteral("weston"),
            {QStringLiteral("--backend=headless-backend.so"), QStringLiteral("--use-pixman"),
             QStringLiteral("--debug"), QStringLiteral("--socket=wayland-test"),
             QStringLiteral("--width=1400"), QStringLiteral("--height=900")});
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

    void start(const QString& program = QStringLiteral(VANTOR_PROGRAM)) {
        program_.setProcessEnvironment(environment_);
        program_.start(program, QStringList());
        ASSERT_TRUE(program_.waitForStarted(patience));
    }

    /// What the screen would show; null when that failed.
    QImage picture() {
        QTemporaryDir folder;
        QProcess photographer;
        photographer.setProcessEnvironment(environment_);
        photographer.setWorkingDirectory(folder.path());
        photographer.start(QStringLiteral("weston-screenshooter"), QStringList());
        if (!photographer.waitForFinished(patience)) return {};
        const QStringList files = QDir(folder.path()).entryList(QDir::Files);
        return files.isEmpty() ? QImage() : QImage(folder.filePath(files.constFirst()));
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
        bus_.start(QStringLiteral("dbus-daemon"), sessionBusArguments(home_.path()));
        ASSERT_TRUE(bus_.waitForReadyRead(patience)) << "no session bus";
        address_ = QString::fromLatin1(bus_.readLine()).trimmed();
        environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
    }
};

}  // namespace vantor
