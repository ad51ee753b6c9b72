#pragma once

#include <QGuiApplication>

namespace vantor {

/// Whether the session's windows are Wayland's: it neither places them nor makes them transparent.
/// Called on the main thread, once the application object exists.
inline bool isWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"));
}

}  // namespace vantor
