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

/// Milliseconds that a tool may take.
constexpr int toolPatience = 15'000;

/// A virtual display with a window manager, and a home folder that nobody else uses.
class Desktop {
  public:
    /// Starts both; the test has failed when isUp() is false.
    explicit Desktop(QSize screen);
    ~Desktop();

    bool isUp() const { return isUp_; }
    const QProcessEnvironment& environment() const { return environment_; }

    /// The user's, as "de_DE.UTF-8", for programs that are started from now on.
    void setLanguage(const QString& name) { environment_.insert(QStringLiteral("LANG"), name); }

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

    /// Whether server and window manager still run, and all windows there are: for the message of a
    /// test that waited in vain.
    QString condition();

    /// How long the threads of this process, of the desktop's own and of one more have waited for
    /// a processor until now, in milliseconds: how much of a delay is the machine's. 0 where the
    /// kernel does not count it.
    qint64 processorWait(qint64 process) const;

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

/// Asks again and again until it is so; false when it is not after `milliseconds`.
bool eventually(const std::function<bool()>& isSo, int milliseconds = 10'000);

/// Whether a pixel has about that colour.
bool isNear(QRgb pixel, const QColor& color);

/// Whether it still runs, or how it ended.
QString stateOf(QProcess& process);

/// How many pixels of `area` have about that colour.
int countColor(const QImage& picture, const QRect& area, const QColor& color);

}  // namespace vantor
