#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace vantor {

/// Handles what happens until `condition` is so; false when it is not so in time.
template <class Condition>
bool handleEventsUntil(Condition&& condition, int milliseconds = 20'000) {
    QElapsedTimer clock;
    clock.start();
    QTimer pulse;  // or a wait for events could be one for ever
    pulse.start(5);
    while (!condition()) {
        if (clock.hasExpired(milliseconds)) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

}  // namespace vantor
