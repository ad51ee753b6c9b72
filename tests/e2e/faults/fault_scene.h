#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

#include "e2e/desktop.h"
#include "e2e/faults/silence_meter.h"
#include "e2e/running_program.h"

namespace vantor {

/// A program on a desktop to which something happens, a window beside it that does nothing, and the
/// time for which either is silent meanwhile.
class FaultScene : public testing::Test {
  protected:
    /// Milliseconds for which the main thread may be silent.
    static constexpr double maxAllowed = 100;
    /// Milliseconds until live figures are shown.
    static constexpr double maxStartTime = 2000;
    /// Milliseconds; on a machine that others keep busy, each look takes a second or two.
    static constexpr int patience = 30'000;

    struct Silence {
        double program = 0;  ///< milliseconds
        double still = 0;    ///< of the window that does nothing
        int answers = 0;     ///< of the program

        /// What is allowed: a machine on which a window that does nothing is silent for long allows
        /// twice that.
        double allowed() const;
        QString text() const;
    };

    void SetUp() override;
    void TearDown() override;

    /// Until it shows live figures; gives the milliseconds that took. The program may be started
    /// through another one, see RunningProgram.
    double start(const QStringList& through = {});

    /// Until the program has the keyboard, too.
    void waitForKeyboard();

    /// From here on silence is measured, and to here.
    void watch();
    Silence endWatch();

    /// Measures for so long while nothing else is done.
    Silence watchFor(int seconds);
    void expectShort(const Silence& silence);

    /// That a start of so many milliseconds is one of at most two seconds, on a machine that does
    /// not hold up others, either.
    static void expectPromptStart(double startTime, const Silence& silence);

    /// How often the provider's thread of that name has done its work.
    int passesOf(const char* provider) const;

    /// The share of one processor that the program has had since the last call, in percent.
    double processorShare();

    /// For the table at the end of scripts/faults.
    static void report(const QString& fault, const QString& promised, const QString& measured);

    /// `standard`, or what the environment's VANTOR_FAULT_ROUNDS says.
    static int rounds(int standard);

    /// The address of the desktop's X server.
    std::string display() const;

    Desktop desktop_{QSize(1366, 900)};
    std::optional<RunningProgram> program_;
    std::optional<SilenceMeter> meter_;

  private:
    QProcess still_;
    QElapsedTimer sinceShare_;
    long long ticksBefore_ = 0;
};

}  // namespace vantor
