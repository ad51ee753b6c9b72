#include <gtest/gtest.h>
#include <signal.h>

#include <QDateTime>
#include <QFile>
#include <QTime>

#include <cmath>
#include <cstdint>
#include <cstring>

#include "e2e/faults/assisted_fault_scene.h"

/// Time that passes without the program, and clocks that are set.
namespace vantor::stop_and_clock_test {
namespace {

constexpr int secondsStopped = 60;

class TimeItself : public AssistedFaultScene {
  protected:
    /// The clock's time in the footer, which is that of the last figures; invalid when there is
    /// none.
    QTime updated() {
        for (const AccessibleElement& element : look()) {
            if (element.name.startsWith(QStringLiteral("Updated ")))
                return QTime::fromString(element.name.section(u' ', 1, 1),
                                         QStringLiteral("HH:mm:ss"));
        }
        return {};
    }

    /// Whether the footer says the time that it is `offset` seconds from now, give or take five.
    bool saysTime(std::int64_t offset) {
        const QTime said = updated();
        const QTime wanted = QDateTime::currentDateTime().addSecs(offset).time();
        return said.isValid() && std::abs(said.secsTo(wanted)) <= 5;
    }

    /// The processor's load that is shown, in percent.
    double load() {
        for (const AccessibleElement& element : look()) {
            if (element.name == QStringLiteral("CPU Load"))
                return element.description.section(u'%', 0, 0).toDouble();
        }
        return -1;
    }
};

TEST_F(TimeItself, AMinuteStoppedIsNoMinuteOfWorkAfterwards) {
    start();
    const pid_t process = static_cast<pid_t>(program_->processId());
    ASSERT_EQ(::kill(process, SIGSTOP), 0);
    QElapsedTimer clock;
    clock.start();
    eventually([&] { return clock.hasExpired(secondsStopped * 1000); }, 2 * secondsStopped * 1000);
    const int before = passesOf("cpu");
    ASSERT_EQ(::kill(process, SIGCONT), 0);
    clock.start();
    const Silence silence = watchFor(5);
    ASSERT_FALSE(HasFatalFailure());
    const int passes = passesOf("cpu") - before;
    const double passed = static_cast<double>(clock.elapsed()) / 1000;
    expectShort(silence);
    EXPECT_GT(passes, 0) << "it does not go on";
    // At half a second each; what was missed is not made up for.
    EXPECT_LT(passes, 2 * passed + 4);
    EXPECT_TRUE(eventually([this] { return saysTime(0); }, patience));
    EXPECT_GE(load(), 0);
    EXPECT_LE(load(), 100);
    report(QStringLiteral("stopped for 60 s, continued"),
           QStringLiteral("goes on at once; nothing is made up for"),
           QStringLiteral("%1, %2 passes in %3 s")
               .arg(silence.text())
               .arg(passes)
               .arg(passed, 0, 'f', 0));
}

TEST_F(TimeItself, AWallClockThatIsSetIsShownAndHoldsNothingUp) {
    const QString name = desktop_.path(QStringLiteral("clock"));
    const auto set = [&](std::int64_t seconds) {
        // The same bytes of the same file: it is mapped.
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        char bytes[sizeof seconds];
        std::memcpy(bytes, &seconds, sizeof seconds);
        ASSERT_EQ(file.write(bytes, sizeof bytes), static_cast<qint64>(sizeof bytes));
    };
    set(0);
    start({QStringLiteral("env"), QStringLiteral("SHIFTED_CLOCK=") + name,
           QStringLiteral("LD_PRELOAD=" VANTOR_SHIFTED_CLOCK)});
    ASSERT_TRUE(eventually([this] { return saysTime(0); }, patience));
    // Not by whole days: the footer says the time of day.
    constexpr std::int64_t hour = 3600;
    constexpr std::int64_t day = 24 * hour;
    for (const std::int64_t step : {-hour, day + hour, -20'000 * day + 2 * hour, 3 * hour}) {
        const QString fault = step < 0 ? QStringLiteral("wall clock set back by %1 h")
                                       : QStringLiteral("wall clock set forward by %1 h");
        Silence silence;
        int passes = 0;
        // What the step itself does, it does each time; what a busy machine does, it does once.
        for (int attempt = 0; attempt < 3; ++attempt) {
            if (attempt > 0) set(0);
            watch();
            ASSERT_FALSE(HasFatalFailure());
            const int before = passesOf("cpu");
            QElapsedTimer clock;
            clock.start();
            set(step);
            eventually([&] { return clock.hasExpired(5000); }, patience);
            silence = endWatch();
            passes = passesOf("cpu") - before;
            if (silence.program <= silence.allowed()) break;
        }
        expectShort(silence);
        EXPECT_GT(passes, 4) << fault.toStdString();
        EXPECT_TRUE(eventually([&] { return saysTime(step); }, patience))
            << fault.toStdString() << ' ' << updated().toString().toStdString();
        EXPECT_LE(load(), 100);
        report(fault.arg(std::abs(step) / hour), QStringLiteral("the time follows, figures go on"),
               QStringLiteral("%1, %2 passes in 5 s").arg(silence.text()).arg(passes));
    }
}

}  // namespace
}  // namespace vantor::stop_and_clock_test
