#pragma once

#include <QColor>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace vantor {

/// A virtual display with a window manager, and a home folder that nobody else uses.
class Desktop {
  public:
    /// Starts both; the test has failed when isUp() is false.
    explicit Desktop(QSize screen);
    ~Desktop();

    bool isUp() const { return isUp_; }
    const QProcessEnvironment& environment() const { return environment_; }

    /// Gives the desktop a session bus of its own, with assistive technology switched on for every
    /// program that is started from then on; its address, empty when it did not start.
    QString startSessionBus();

    /// A tray of the old kind, whose icons are windows, in the top right corner. False when it did
    /// not start.
    bool startTray();
    void stopTray();
    static QRect trayArea(QSize screen) { return {screen.width() - 40, 0, 40, 28}; }

    /// The user's settings file on this desktop.
    QString settingsFile() const;

    /// Runs a tool on this display to its end; gives what it printed.
    QString run(const QString& tool, const QStringList& arguments) const;

    /// What is on the screen now.
    QImage picture() const;

    void key(const QString& name) const;
    void type(const QString& text) const;
    void clickAt(QPoint place, int times = 1) const;

    /// How many windows of exactly that title are on the screen.
    int windowsTitled(const QString& title) const;

    /// Gives the keyboard to the window of that title.
    void activate(const QString& title) const;

    /// The title of the window that has the keyboard.
    QString activeTitle() const;

    /// A file in the home folder.
    QString path(const QString& name) const { return home_.filePath(name); }

  private:
    bool startWindowManager();

    QTemporaryDir home_;
    QProcessEnvironment environment_;
    QProcess server_;
    QProcess windowManager_;
    QProcess sessionBus_;
    QProcess tray_;
    bool isUp_ = false;
};

/// The program under test, on a desktop.
class RunningProgram {
  public:
    /// Starts it, through another program if one is named: with its arguments, the last of which
    /// is then the file of the program under test. That other one has to become it (exec).
    explicit RunningProgram(const Desktop& desktop, QStringList through = {});
    ~RunningProgram();

    /// Until it has a window and has drawn live figures.
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
    const Desktop& desktop_;
    QProcess process_;
};

/// Asks again and again until it is so; false when it is not after `milliseconds`.
bool eventually(const std::function<bool()>& isSo, int milliseconds = 10'000);

/// How many pixels of `area` have about that colour.
int countColor(const QImage& picture, const QRect& area, const QColor& color);

}  // namespace vantor
