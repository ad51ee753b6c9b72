#pragma once

#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>

#include "e2e/desktop.h"

namespace vantor {

/// The program under test, on a desktop.
class RunningProgram {
  public:
    /// Starts it, through another program if one is named: with its arguments, the last of which
    /// is then the file of the program under test. That other one has to become it (exec).
    explicit RunningProgram(Desktop& desktop, QStringList through = {});

    /// What another one is to be called with, to become the program of that file and not the one
    /// under test: the latter's file would be an argument.
    static QStringList instead(const QString& file);
    ~RunningProgram();

    /// Until it has a window and has drawn live figures. What it came to is printed when it never
    /// does.
    bool waitForLiveData();
    bool isRunning() const { return process_.state() == QProcess::Running; }
    bool waitForEnd(int milliseconds);
    void terminate() { process_.terminate(); }
    qint64 processId() const { return process_.processId(); }
    int exitStatus() const { return process_.exitCode(); }
    bool endedNormally() const { return process_.exitStatus() == QProcess::NormalExit; }

    /// The id of its first window that is on the screen, empty while it has none.
    QString window() const;
    QRect windowArea() const;

    /// Whether the keyboard is the window's.
    bool isActive() const;

    /// Whether it has more windows than its first: a menu is one.
    bool hasOpenMenu() const;

    /// The button that shows the keyboard's focus, as a place on the screen; empty when none does.
    QRect focusedButton() const;

  private:
    QString condition();

    Desktop& desktop_;
    QProcess process_;
};

}  // namespace vantor
