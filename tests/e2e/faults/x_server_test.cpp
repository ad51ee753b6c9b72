#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <xcb/xcb.h>

#include <QDir>
#include <QFile>

#include <memory>

#include "e2e/faults/fault_scene.h"

/// The screen is taken away.
namespace vantor::x_server_test {
namespace {

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

class XServer : public FaultScene {
  protected:
    /// The process at the other end of a connection to the server.
    pid_t server() const {
        const std::unique_ptr<xcb_connection_t, Disconnect> connection(
            xcb_connect(display().c_str(), nullptr));
        struct ucred other = {};
        socklen_t size = sizeof other;
        const int socket = xcb_get_file_descriptor(connection.get());
        return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 ? other.pid : 0;
    }

    QByteArray settings() const {
        QFile file(desktop_.settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(XServer, KilledEndsTheProgramWhichStartsOnTheNextOneWithItsSettings) {
    QFile file(desktop_.settingsFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[General]\nappearance=light\nhistoryLength=123\nrefreshInterval=2\n");
    file.close();
    start();
    const pid_t server = this->server();
    ASSERT_GT(server, 1);
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(::kill(server, SIGKILL), 0);
    ASSERT_TRUE(program_->waitForEnd(patience));
    const double end = static_cast<double>(clock.elapsed());
    EXPECT_TRUE(program_->endedNormally()) << "it crashed";
    EXPECT_LT(end, 3000);
    const QByteArray after = settings();
    for (const char* line : {"appearance=light", "historyLength=123", "refreshInterval=2"})
        EXPECT_TRUE(after.contains(line)) << after.toStdString();
    const QDir folder(desktop_.path(QStringLiteral("config/vantor")));
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
        EXPECT_TRUE(name.endsWith(QStringLiteral(".ini"))) << name.toStdString() << " is left over";

    Desktop next(QSize(1366, 900));
    ASSERT_TRUE(next.isUp());
    clock.start();
    RunningProgram again(
        next, {QStringLiteral("env"), QStringLiteral("HOME=") + desktop_.path({}),
               QStringLiteral("XDG_RUNTIME_DIR=") + desktop_.path({}),
               QStringLiteral("XDG_CONFIG_HOME=") + desktop_.path(QStringLiteral("config"))});
    EXPECT_TRUE(again.waitForLiveData());
    const double startTime = static_cast<double>(clock.elapsed());
    EXPECT_EQ(settings(), after);
    report(QStringLiteral("X server killed, another one started"),
           QStringLiteral("ends within 3 s without a crash; settings are kept"),
           QStringLiteral("ended after %1 s, live again in %2 s")
               .arg(end / 1000, 0, 'f', 2)
               .arg(startTime / 1000, 0, 'f', 1));
}

}  // namespace
}  // namespace vantor::x_server_test
