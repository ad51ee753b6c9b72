#include "app/quit_watch.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QWidget>

#include <csignal>

#include "ui/rendering.h"

namespace vantor::quit_watch_test {
namespace {

using namespace std::chrono_literals;

/// A window that has something against being closed.
class RefusingWindow : public QWidget {
  protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST(QuitWatchTest, ARequestThatAWindowRefusesIsWatchedUntilItIsRefused) {
    EndWatchdog watchdog(1h);
    const QuitWatch watch(*qApp, watchdog);
    RefusingWindow window;
    window.show();
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_NE(::alarm(3600), 0U) << "a window may hang while it is asked";
    settleEvents();
    EXPECT_EQ(::alarm(0), 0U);
    QEvent other(QEvent::User);
    QCoreApplication::sendEvent(qApp, &other);
    EXPECT_EQ(::alarm(0), 0U) << "for nothing else";
}

/// The whole program, which hangs in a read of its main thread.
QProcess& startStuck(QProcess& program, const QString& manner, const QString& home) {
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
    surroundings.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
    surroundings.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    surroundings.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    program.setProcessEnvironment(surroundings);
    program.start(QStringLiteral(VANTOR_QUITTING_PROGRAM), {manner});
    while (!program.canReadLine()) {
        if (!program.waitForReadyRead(20'000)) break;
    }
    return program;
}

TEST(StuckProgramTest, ASignalEndsItWithinFiveSeconds) {
    const QTemporaryDir home;
    QProcess program;
    startStuck(program, QStringLiteral("stuck"), home.path());
    ASSERT_EQ(program.readLine().trimmed(), "stuck");
    QElapsedTimer watch;
    watch.start();
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(20'000));
    EXPECT_LT(watch.elapsed(), 5000);
    EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(program.exitCode(), SIGTERM);
}

TEST(StuckProgramTest, QuitEndsItWithinFiveSeconds) {
    const QTemporaryDir home;
    QProcess program;
    startStuck(program, QStringLiteral("quitting"), home.path());
    ASSERT_EQ(program.readLine().trimmed(), "stuck");
    QElapsedTimer watch;
    watch.start();
    ASSERT_TRUE(program.state() == QProcess::NotRunning || program.waitForFinished(20'000));
    EXPECT_LT(watch.elapsed(), 5000);
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
}

}  // namespace
}  // namespace vantor::quit_watch_test
