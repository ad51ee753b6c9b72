#include <QGuiApplication>
#include <QWindow>
#include <QtGlobal>

#include "app/window/window_frames.h"
#include "app/window/window_system.h"
#include "ui/theme.h"

#if QT_CONFIG(xcb)
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#endif

namespace vantor {

namespace {

#if QT_CONFIG(xcb)

struct FreeAtom {
    void operator()(xcb_intern_atom_reply_t* reply) const { std::free(reply); }
};

xcb_atom_t atomOf(xcb_connection_t* server, xcb_intern_atom_cookie_t question) {
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeAtom> reply(
        xcb_intern_atom_reply(server, question, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_intern_atom_cookie_t ask(xcb_connection_t* server, std::string_view name) {
    return xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

/// Without the property the frame has the desktop's own variant.
void sayVariant(const QWindow& window, bool isDark) {
    const auto* const application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Other platforms than that of X displays may have the interface, and no connection behind it.
    xcb_connection_t* const server = application ? application->connection() : nullptr;
    if (!server) return;
    const auto variantAsked = ask(server, "_GTK_THEME_VARIANT");
    const auto textAsked = ask(server, "UTF8_STRING");
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
