#include "app/session/termination_signals.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <memory>
#include <thread>

#include "ui/rendering.h"

namespace vantor::termination_signals_test {
namespace {

using namespace std::chrono_literals;

class TerminationSignalsTest : public testing::Test {
  protected:
    // So that no pause of the machine makes a second signal the test's end.
    static constexpr std::chrono::milliseconds never = 1h;

    int calls = 0;
    std::unique_ptr<TerminationSignals> handling =
        std::make_unique<TerminationSignals>([this] { ++calls; }, never);

    void runUntilCalled() const {
        QElapsedTimer patience;
        patience.start();
        while (calls == 0 && !patience.hasExpired(5000))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    static auto handlerOf(int number) {
        struct sigaction action {};
        ::sigaction(number, nullptr, &action);
        return action.sa_handler;
    }
};

TEST_F(TerminationSignalsTest, EachOfThemIsACallOnTheMainThread) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        calls = 0;
        handling.reset();
        handling = std::make_unique<TerminationSignals>([this] { ++calls; }, never);
        ASSERT_EQ(::raise(number), 0);
        EXPECT_EQ(calls, 0) << "never from within the signal";
        runUntilCalled();
        EXPECT_EQ(calls, 1) << number;
    }
}

TEST_F(TerminationSignalsTest, SeveralAtOnceAreOneRequest) {
    for (const int number : {SIGTERM, SIGHUP, SIGTERM, SIGINT})
        ::raise(number);
    runUntilCalled();
    settleEvents();
    EXPECT_EQ(calls, 1);
    ::raise(SIGTERM);
    settleEvents();
    EXPECT_EQ(calls, 1) << "not even after it was told";
}

TEST_F(TerminationSignalsTest, OneThatInterruptsAnotherThreadIsToldOnTheMainOne) {
    const QThread* seen = nullptr;
    handling.reset();
    handling = std::make_unique<TerminationSignals>(
        [&] {
            seen = QThread::currentThread();
            ++calls;
        },
        never);
    std::thread([] { ::raise(SIGTERM); }).join();
    runUntilCalled();
    EXPECT_EQ(seen, QThread::currentThread());
}

TEST_F(TerminationSignalsTest, ItsEndPutsTheFormerHandlingBack) {
    handling.reset();
    const auto former = std::signal(SIGTERM, [](int) {});
    const auto ours = handlerOf(SIGTERM);
    handling = std::make_unique<TerminationSignals>([] {}, never);
    EXPECT_NE(handlerOf(SIGTERM), ours);
    handling.reset();
    EXPECT_EQ(handlerOf(SIGTERM), ours);
    std::signal(SIGTERM, former);
}

TEST_F(TerminationSignalsTest, WhatIsIgnoredStaysIgnored) {
    handling.reset();
    const auto former = std::signal(SIGHUP, SIG_IGN);
    handling = std::make_unique<TerminationSignals>([this] { ++calls; }, never);
    EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
    EXPECT_NE(handlerOf(SIGTERM), SIG_IGN);
    handling.reset();
    EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
    std::signal(SIGHUP, former);
}

TEST_F(TerminationSignalsTest, AThreadCanBeKeptFromThem) {
    std::thread([] {
        TerminationSignals::keepFromThisThread();
        sigset_t blocked;
        ::sigemptyset(&blocked);
        ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
        for (const int number : {SIGTERM, SIGINT, SIGHUP})
            EXPECT_EQ(::sigismember(&blocked, number), 1) << number;
        EXPECT_EQ(::sigismember(&blocked, SIGSEGV), 0);
    }).join();
    sigset_t blocked;
    ::sigemptyset(&blocked);
    ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    EXPECT_EQ(::sigismember(&blocked, SIGTERM), 0) << "no other thread is";
}

/// A process of its own that waits for signals.
class EndingProgram {
  public:
    explicit EndingProgram(const QString& manner) {
        process_.start(QStringLiteral(VANTOR_ENDING_PROGRAM), {manner});
    }
    EndingProgram(const EndingProgram&) = delete;
    EndingProgram& operator=(const EndingProgram&) = delete;
    ~EndingProgram() {
        if (process_.state() == QProcess::NotRunning) return;
        process_.kill();
        process_.waitForFinished(5000);
    }

    bool says(const QByteArray& word) {
        while (!process_.canReadLine()) {
            if (!process_.waitForReadyRead(20'000)) return false;
        }
        return process_.readLine().trimmed() == word;
    }
    void send(int number) const { ::kill(static_cast<pid_t>(process_.processId()), number); }
    bool endsWithin(int milliseconds) {
        return process_.waitForFinished(milliseconds) || process_.state() == QProcess::NotRunning;
    }
    QProcess::ExitStatus manner() const { return process_.exitStatus(); }
    int status() const { return process_.exitCode(); }

  private:
    QProcess process_;
};

TEST(EndingProgramTest, ASignalEndsItOrderly) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        EndingProgram program(QStringLiteral("orderly"));
        ASSERT_TRUE(program.says("ready"));
        program.send(number);
        EXPECT_TRUE(program.says("ending"));
        ASSERT_TRUE(program.endsWithin(20'000));
        EXPECT_EQ(program.manner(), QProcess::NormalExit);
        EXPECT_EQ(program.status(), 3);
    }
}

TEST(EndingProgramTest, TwoSignalsAtOnceEndItOrderlyToo) {
    EndingProgram program(QStringLiteral("orderly"));
    ASSERT_TRUE(program.says("ready"));
    program.send(SIGTERM);
    program.send(SIGHUP);
    ASSERT_TRUE(program.endsWithin(20'000));
    EXPECT_EQ(program.manner(), QProcess::NormalExit);
    EXPECT_EQ(program.status(), 3);
}

TEST(EndingProgramTest, ASecondSignalCutsAnEndThatHangsShort) {
    EndingProgram program(QStringLiteral("hanging"));
    ASSERT_TRUE(program.says("ready"));
    program.send(SIGTERM);
    ASSERT_TRUE(program.says("ending"));
    QElapsedTimer patience;
    patience.start();
    do {
        program.send(SIGINT);
    } while (!program.endsWithin(50) && !patience.hasExpired(20'000));
    EXPECT_GE(patience.elapsed(), TerminationSignals::usualSameRequest.count() - 50);
    EXPECT_EQ(program.manner(), QProcess::CrashExit);
    EXPECT_EQ(program.status(), SIGINT) << "which is how the toolkit tells the signal";
}

TEST(EndingProgramTest, StartedToSurviveItsTerminalItDoes) {
    EndingProgram program(QStringLiteral("immune"));
    ASSERT_TRUE(program.says("ready"));
    program.send(SIGHUP);
    EXPECT_FALSE(program.endsWithin(200));
    program.send(SIGTERM);
    EXPECT_TRUE(program.says("ending"));
    ASSERT_TRUE(program.endsWithin(20'000));
    EXPECT_EQ(program.status(), 3);
}

TEST(EndingProgramTest, StuckInACallOfTheKernelItEndsWithTheSignalAfterAWhile) {
    for (const int number : {SIGTERM, SIGINT}) {
        EndingProgram program(QStringLiteral("stuck"));
        ASSERT_TRUE(program.says("ready"));
        QElapsedTimer watch;
        watch.start();
        program.send(number);
        ASSERT_TRUE(program.endsWithin(20'000));
        EXPECT_GE(watch.elapsed(), 900) << "an end gets its time";
        EXPECT_EQ(program.manner(), QProcess::CrashExit);
        EXPECT_EQ(program.status(), number) << "which is how the toolkit tells the signal";
    }
}

TEST(EndingProgramTest, StuckAfterItWasToQuitItEndsWithAStatusThatTellsSo) {
    EndingProgram program(QStringLiteral("quitting"));
    ASSERT_TRUE(program.says("ready"));
    ASSERT_TRUE(program.endsWithin(20'000));
    EXPECT_EQ(program.manner(), QProcess::NormalExit);
    EXPECT_EQ(program.status(), 1);
}

TEST(EndingProgramTest, AnEndThatWasRefusedIsNone) {
    EndingProgram program(QStringLiteral("refusing"));
    ASSERT_TRUE(program.says("ready"));
    EXPECT_FALSE(program.endsWithin(1500));
    program.send(SIGTERM);
    ASSERT_TRUE(program.endsWithin(20'000));
    EXPECT_EQ(program.status(), SIGTERM) << "and the next one is an end";
}

}  // namespace
}  // namespace vantor::termination_signals_test
