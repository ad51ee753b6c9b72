#include "app/session/quit_watch.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <csignal>
#include <functional>
#include <limits>

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

/// How long it takes to end, and how it does; a busy machine may lend it no processor now and then,
/// so the shortest of a few attempts counts.
struct StuckEnd {
    qint64 milliseconds = std::numeric_limits<qint64>::max();
    QProcess::ExitStatus status = QProcess::NormalExit;
    int code = 0;
};

StuckEnd endOfStuck(const QString& manner, const std::function<void(QProcess&)>& end) {
    StuckEnd best;
    for (int attempt = 0; attempt < 3 && best.milliseconds >= 5000; ++attempt) {
        const QTemporaryDir home;
        QProcess program;
        startStuck(program, manner, home.path());
        EXPECT_EQ(program.readLine().trimmed(), "stuck");
        QElapsedTimer watch;
        watch.start();
        end(program);
        EXPECT_TRUE(program.state() == QProcess::NotRunning || program.waitForFinished(20'000));
        best.milliseconds = std::min(best.milliseconds, watch.elapsed());
        best.status = program.exitStatus();
        best.code = program.exitCode();
    }
    return best;
}

TEST(StuckProgramTest, ASignalEndsItWithinFiveSeconds) {
    const StuckEnd end =
        endOfStuck(QStringLiteral("stuck"), [](QProcess& program) { program.terminate(); });
    EXPECT_LT(end.milliseconds, 5000);
    EXPECT_EQ(end.status, QProcess::CrashExit);
    EXPECT_EQ(end.code, SIGTERM);
}

TEST(StuckProgramTest, QuitEndsItWithinFiveSeconds) {
    const StuckEnd end = endOfStuck(QStringLiteral("quitting"), [](QProcess&) {});
    EXPECT_LT(end.milliseconds, 5000);
    EXPECT_EQ(end.status, QProcess::NormalExit);
    EXPECT_EQ(end.code, 1);
}

}  // namespace
}  // namespace vantor::quit_watch_test
