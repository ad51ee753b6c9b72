#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace vantor {

/// A home folder of its own for the dialogs of a test: the toolkit keeps in it what it knows of
/// file dialogs.
class DialogDesk {
  public:
    DialogDesk() {
        qputenv("HOME", home_.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home_.filePath(QStringLiteral("config")).toLocal8Bit());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           home_.filePath(QStringLiteral("config")));
    }
    DialogDesk(const DialogDesk&) = delete;
    DialogDesk& operator=(const DialogDesk&) = delete;
    ~DialogDesk() {
        restore("HOME", homeBefore_);
        restore("XDG_CONFIG_HOME", configBefore_);
    }

    QString home() const { return home_.path(); }
    QString path(const char* name) const { return home_.filePath(QString::fromUtf8(name)); }

    /// The window of that kind that is on the screen; none when there is none.
    template <class Window>
    static Window* shown() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            auto* const window = dynamic_cast<Window*>(each);
            if (window && window->isVisible()) return window;
        }
        return nullptr;
    }

    /// Runs `answer` in a loop that other code is about to run.
    static void meanwhile(const std::function<void()>& answer) {
        QTimer::singleShot(0, qApp, answer);
    }

  private:
    static void restore(const char* name, const QByteArray& value) {
        if (value.isNull()) {
            qunsetenv(name);
        } else {
            qputenv(name, value);
        }
    }

    QByteArray homeBefore_ = qgetenv("HOME");
    QByteArray configBefore_ = qgetenv("XDG_CONFIG_HOME");
    QTemporaryDir home_;
};

}  // namespace vantor
