#include <QByteArrayList>

#include <algorithm>

#include "app/session/safe_environment.h"
#include "app/session/session_sockets.h"

namespace vantor {

bool isLocalDisplayMissing() {
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool isX11 = platform.isEmpty() ? qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
                                          : platform.startsWith("xcb");
    const qsizetype colon = display.lastIndexOf(':');
    const QByteArray host = display.left(std::max<qsizetype>(colon, 0));
    if (!isX11 || colon < 0 || (!host.isEmpty() && host != "unix")) return false;
    const QByteArray number = display.mid(colon + 1).split('.').first();
    bool isNumber = false;
    number.toUInt(&isNumber);
    return isNumber && !takesConnections("/tmp/.X11-unix/X" + number);
}

}  // namespace vantor
