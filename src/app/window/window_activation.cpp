#include "app/window/window_activation.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMetaObject>

#include <cstdint>
#include <cstring>

#include "app/session/instance_claim.h"
#include "app/window/window_frames.h"
#include "app/window/window_system.h"
#include "ui/components/make_child.h"

namespace vantor {

namespace {

void raiseAndActivate(QWidget& window) {
    window.raise();
    window.activateWindow();
}

/// Activation on X11, where a request has the time of the last user action that the toolkit knows:
/// when the user has worked elsewhere since, window managers refuse it. Every change of a window's
/// property is reported with the server's present time, which the toolkit then uses; so this sets
/// one to its present value, and activates again after the report.
class X11Activation : public QObject, public QAbstractNativeEventFilter {
  public:
    explicit X11Activation(QWidget* window) : QObject(window), window_(window) {
        QCoreApplication::instance()->installNativeEventFilter(this);
        window->setWindowRole(window->windowRole());
    }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override {
        if (isDone_ || type != "xcb_generic_event_t" || !isOurChange(message)) return false;
        isDone_ = true;
        // Not before the toolkit has seen it as well.
        QMetaObject::invokeMethod(
            this,
            [this] {
                raiseAndActivate(*window_);
                deleteLater();
            },
            Qt::QueuedConnection);
        return false;
    }

  private:
    /// The layout of an event is the protocol's: its kind, a byte and two that are unused here, the
    /// window.
    bool isOurChange(const void* event) const {
        constexpr std::uint8_t propertyNotify = 28;
        constexpr std::uint8_t sentByProgram = 0x80;
        const auto* const bytes = static_cast<const std::uint8_t*>(event);
        std::uint32_t changed = 0;
        std::memcpy(&changed, bytes + 4, sizeof changed);
        return (bytes[0] & ~sentByProgram) == propertyNotify && changed == window_->winId();
    }

    QWidget* window_;  // the parent
    bool isDone_ = false;
};

}  // namespace

QString activationTokenOfEnvironment() {
    QString wayland = checkedToken(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
    return wayland.isEmpty() ? checkedToken(qEnvironmentVariable("DESKTOP_STARTUP_ID")) : wayland;
}

void bringToFront(QWidget& window, const QString& activationToken) {
    // It is from there that the toolkit takes it for the next request, and then removes it.
    if (isWayland() && !activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toLatin1());
    if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    if (!window.isVisible()) frameWindow(window);
    window.show();
    if (QGuiApplication::platformName() == u"xcb") makeChild<X11Activation>(&window);
    // This is also what sends the change on its way: the toolkit holds requests back otherwise.
    raiseAndActivate(window);
}

}  // namespace vantor
