#include <QGuiApplication>
#include <QWindow>
#include <QtGlobal>

#include <cstdint>
#include <string_view>

#include "app/window/linux_x11.h"
#include "app/window/window_frames.h"
#include "app/window/window_system.h"
#include "ui/theme.h"

namespace vantor {

namespace {

#if QT_CONFIG(xcb)

/// Without the property the frame has the desktop's own variant.
void sayVariant(const QWindow& window, bool isDark) {
    xcb_connection_t* const server = x11Connection();
    if (!server) return;
    const auto variantAsked = askForAtom(server, "_GTK_THEME_VARIANT");
    const auto textAsked = askForAtom(server, "UTF8_STRING");
    const xcb_atom_t variant = atomOf(server, variantAsked);
    const xcb_atom_t text = atomOf(server, textAsked);
    const auto id = static_cast<xcb_window_t>(window.winId());
    if (!isDark) {
        xcb_delete_property(server, id, variant);
        return;
    }
    constexpr std::string_view dark = "dark";
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, id, variant, text, 8,
                        static_cast<std::uint32_t>(dark.size()), dark.data());
}

#else

void sayVariant(const QWindow&, bool) {}

#endif

/// The toolkit has no other way to make it draw its frame anew in other colours.
void replaceFrame(QWindow& window) {
    const Qt::WindowFlags flags = window.flags();
    const bool isDrawnByToolkit = !window.frameMargins().isNull();
    if (!isDrawnByToolkit || flags.testFlag(Qt::FramelessWindowHint)) return;
    window.setFlags(flags | Qt::FramelessWindowHint);
    window.setFlags(flags);
}

bool isDarkNow() {
    return isDark(colorScheme(QGuiApplication::palette()));
}

}  // namespace

void frameWindow(QWidget& window) {
    if (QGuiApplication::platformName() != u"xcb" || !isDarkNow()) return;
    window.winId();  // makes the display's window
    if (const QWindow* const handle = window.windowHandle()) sayVariant(*handle, true);
}

void renewWindowFrames() {
    const bool isX11 = QGuiApplication::platformName() == u"xcb";
    if (!isX11 && !isWayland()) return;
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (!window->handle()) continue;
        if (isX11) {
            sayVariant(*window, isDarkNow());
        } else if (window->isVisible()) {
            replaceFrame(*window);
        }
    }
}

}  // namespace vantor
