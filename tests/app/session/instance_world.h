#pragma once

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

#include <csignal>

#include "support/session_bus_config.h"

namespace vantor {

/// A session bus of the test's own.
class SessionBus {
  public:
    SessionBus() { start({}); }
    /// At that place, where nothing else is yet.
    explicit SessionBus(const QString& address) { start({QStringLiteral("--address=") + address}); }
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus() { end(); }

    void end() {
        process_.kill();
        process_.waitForFinished(5000);
    }

    /// Empty when it did not start.
    const QString& address() const { return address_; }

  private:
    void start(const QStringList& arguments) {
        // What it starts, above all the accessibility bus, keeps its sockets in the user's folders:
        // two buses of one user would share them, and each would be asked for the other's.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* const folder : {"HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"})
            environment.insert(QString::fromLatin1(folder), home_.path());
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(QStringLiteral("dbus-daemon"),
                       sessionBusArguments(home_.path()) + arguments);
        if (process_.waitForReadyRead(20'000))
            address_ = QString::fromLatin1(process_.readLine()).trimmed();
    }

    QTemporaryDir home_;
    QProcess process_;
    QString address_;
};

/// A start of the program in a session of the test's own; ends with this object.
class Start {
  public:
    explicit Start(const QProcessEnvironment& session, const QString& manner = {},
                   const QString& title = {}) {
        process_.setProcessEnvironment(session);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(QStringLiteral(VANTOR_INSTANCE_PROGRAM), {manner, title});
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;
    ~Start() {
        if (process_.state() == QProcess::NotRunning) return;
        process_.kill();
        process_.waitForFinished(5000);
    }

    /// Its next line; empty when none comes.
    QByteArray says() {
        while (!process_.canReadLine()) {
            if (!process_.waitForReadyRead(20'000)) return {};
        }
        return process_.readLine().trimmed();
    }
    bool saysAnythingWithin(int milliseconds) {
        return process_.canReadLine() || process_.waitForReadyRead(milliseconds);
    }
    bool ends() {
        return process_.waitForFinished(20'000) || process_.state() == QProcess::NotRunning;
    }
    int status() const { return process_.exitCode(); }
    void send(int number) const { ::kill(static_cast<pid_t>(process_.processId()), number); }

  private:
    QProcess process_;
};

/// What a session is to a program: a runtime folder, perhaps a bus, a display.
class Session {
  public:
    Session() : environment_(QProcessEnvironment::systemEnvironment()) {
        for (const char* const name : {"DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY", "DISPLAY",
                                       "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
            environment_.remove(QLatin1String(name));
        }
        set("XDG_RUNTIME_DIR", folder());
        // However slow the machine, a program that works is waited for.
        set("PATIENCE_OF_INSTANCE", QStringLiteral("20000"));
    }

    void set(const char* name, const QString& value) {
        environment_.insert(QLatin1String(name), value);
    }
    QString folder() const { return folder_.path(); }
    const QProcessEnvironment& environment() const { return environment_; }

    /// The same session, as a launcher starts a program in it.
    QProcessEnvironment with(const char* name, const QString& value) const {
        QProcessEnvironment changed = environment_;
        changed.insert(QLatin1String(name), value);
        return changed;
    }

    /// The same session, for a program with the patience that it usually has.
    QProcessEnvironment withUsualPatience() const {
        return with("PATIENCE_OF_INSTANCE", QString());
    }

  private:
    QTemporaryDir folder_;
    QProcessEnvironment environment_;
};

}  // namespace vantor
