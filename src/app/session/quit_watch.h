#pragma once

#include <QObject>
#include <QTimer>

#include "platform/posix/end_watchdog.h"

class QGuiApplication;

namespace vantor {

/// Notifies a watchdog of every request to quit that the toolkit gets: Quit in a menu, the last
/// window, a session manager, a desktop. One that a window refuses does not count. Main thread;
/// both must outlive it.
class QuitWatch : public QObject {
  public:
    QuitWatch(QGuiApplication& application, EndWatchdog& watchdog);

    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    QGuiApplication& application_;
    EndWatchdog& watchdog_;
    QTimer stillHere_;
};

}  // namespace vantor
