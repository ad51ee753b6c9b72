#pragma once

#include <QObject>
#include <QTimer>

#include "platform/posix/end_watchdog.h"

class QGuiApplication;

namespace vantor {

/// Tells a watchdog of every end that the toolkit is asked for: Quit in a menu, the last window,
/// a session manager, a desktop. A request that a window refuses is none. Main thread; both must
/// outlive it.
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
