#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>

#include <csignal>

#include "e2e/program_fixture.h"

/// Too little of what every program needs: it goes on or says in a line why it cannot, and ends
/// when it is asked to.
namespace vantor::scarcity_test {
namespace {

class Scarcity : public ProgramOnADesktop {
  protected:
    /// `prepare` is what a shell does before it becomes the program, through others if need be.
    void startAfter(const QString& prepare, const QString& through = {}) {
        QFile::remove(errors());
        program_.emplace(
            desktop_,
            QStringList{
                QStringLiteral("sh"), QStringLiteral("-c"),
                QStringLiteral("%1; exec %2 \"$0\" 2>'%3'").arg(prepare, through, errors())});
    }
    QString errors() const { return desktop_.path(QStringLiteral("errors")); }

    QByteArray said() const {
        QFile file(errors());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Until it shows something, has given up, or has had the time to do either.
    bool isSettled() {
        return eventually(
            [this] {
                return !program_->isRunning() || program_->waitForEnd(0) ||
                       !program_->window().isEmpty();
            },
            3000);
    }
    void limit(const QString& what) const {
        desktop_.run(QStringLiteral("prlimit"),
                     {QStringLiteral("--pid"), QString::number(program_->processId()), what});
    }
    qint64 addressSpace() const {
        QFile file(QStringLiteral("/proc/%1/statm").arg(program_->processId()));
        if (!file.open(QIODevice::ReadOnly)) return 0;
        return file.readAll().split(' ').value(0).toLongLong() * 4096;
    }
    void openEverything() {
        for (const char* const keys : {"F1", "ctrl+comma", "ctrl+e"}) {
            if (program_->waitForEnd(300)) return;
            desktop_.key(QString::fromLatin1(keys));
        }
        program_->waitForEnd(500);
    }
    void expectAnHonestEnd(const QString& what) {
        SCOPED_TRACE(what.toStdString());
        program_->terminate();
        ASSERT_TRUE(program_->waitForEnd(20'000)) << "it does not end";
        if (!program_->endedNormally()) {
            EXPECT_EQ(program_->exitStatus(), SIGTERM) << said().toStdString();
        } else if (program_->exitStatus() != 0) {
            EXPECT_EQ(program_->exitStatus(), 1);
            // The library that speaks to the display says for itself that it was refused a file.
            EXPECT_TRUE(said().contains("vantor: ") || said().contains("X11 connection broke"))
                << "without a word: " << said().toStdString();
        }
    }
};

TEST_F(Scarcity, WithTooFewFilesItEndsWhenItIsToldTo) {
    for (const int files : {12, 16, 22, 30}) {
        const QString what = QStringLiteral("ulimit -n %1").arg(files);
        startAfter(what);
        isSettled();
        expectAnHonestEnd(what);
    }
}

TEST_F(Scarcity, WithNoFileLeftItGoesOnAndEndsWhenItIsToldTo) {
    startAfter(QStringLiteral(":"));
    ASSERT_TRUE(program_->waitForLiveData());
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    limit(QStringLiteral("--nofile=10"));
    openEverything();
    expectAnHonestEnd(QStringLiteral("no file"));
}

TEST_F(Scarcity, WithTooLittleAddressSpaceItSaysSoOrGoesOn) {
    for (const int megabytes : {90, 120, 150}) {
        const QString what = QStringLiteral("ulimit -v %1").arg(megabytes * 1024);
        startAfter(what);
        isSettled();
        expectAnHonestEnd(what);
    }
}

TEST_F(Scarcity, WhenMemoryRunsOutItSaysSoOrGoesOn) {
    for (const int kilobytes : {0, 1024, 2048, 8192}) {
        startAfter(QStringLiteral(":"));
        ASSERT_TRUE(program_->waitForLiveData());
        limit(QStringLiteral("--as=%1").arg(addressSpace() + kilobytes * 1024));
        openEverything();
        expectAnHonestEnd(QStringLiteral("%1 kB more").arg(kilobytes));
    }
}

TEST_F(Scarcity, WithoutThreadsItSaysSoOrGoesOn) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can be somebody of whom there is nothing yet";
    for (const int threads : {1, 4, 8}) {
        const QString what = QStringLiteral("%1 threads").arg(threads);
        // Nobody else is that user: no other thread counts.
        startAfter(QStringLiteral(":"),
                   QStringLiteral("setpriv --reuid=5432%1 --clear-groups prlimit --nproc=%1")
                       .arg(threads));
        isSettled();
        expectAnHonestEnd(what);
    }
}

}  // namespace
}  // namespace vantor::scarcity_test
