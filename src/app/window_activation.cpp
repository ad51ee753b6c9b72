#include "app/window_activation.h"

#include <QGuiApplication>

#include "app/instance_claim.h"

namespace vantor {

QString activationTokenOfEnvironment() {
    const QString wayland = checkedToken(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
    return wayland.isEmpty() ? checkedToken(qEnvironmentVariable("DESKTOP_STARTUP_ID")) : wayland;
}

void bringToFront(QWidget& window, const QString& activationToken) {
    const bool isWayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    // It is from there that the toolkit takes it for the next request, and then removes it.
    if (isWayland && !activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toLatin1());
    if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace vantor
