#include "app/session/quit_watch.h"

#include <QEvent>
#include <QGuiApplication>

namespace vantor {

QuitWatch::QuitWatch(QGuiApplication& application, EndWatchdog& watchdog)
    : application_(application), watchdog_(watchdog) {
    stillHere_.setSingleShot(true);
    stillHere_.setInterval(0);
    QObject::connect(&stillHere_, &QTimer::timeout, this, [this] { watchdog_.goesOn(); });
    // The loop may come to that timer before it ends.
    QObject::connect(&application_, &QCoreApplication::aboutToQuit, this, [this] {
        stillHere_.stop();
        watchdog_.ending();
    });
    application_.installEventFilter(this);
}

bool QuitWatch::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::Quit && receiver == &application_) {
        watchdog_.ending();
        stillHere_.start();
    }
    return false;
}

}  // namespace vantor
