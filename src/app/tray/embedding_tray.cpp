#include "app/tray/embedding_tray.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QtGlobal>

#include <cstdlib>
#include <memory>

#if QT_CONFIG(xcb)
#include <xcb/xcb.h>
#endif

namespace vantor {

#if QT_CONFIG(xcb)

namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

QByteArray selectionName() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0) std::free(host);
    return "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen);
}

xcb_atom_t atomOf(xcb_connection_t* server, const QByteArray& name) {
    const auto request =
        xcb_intern_atom(server, 0, static_cast<uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
        xcb_intern_atom_reply(server, request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace

bool hasEmbeddingTray() {
    const auto* const application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Other platforms than that of X displays may have the interface, and no connection behind it.
    xcb_connection_t* const server = application ? application->connection() : nullptr;
    if (!server) return false;
    static const xcb_atom_t selection = atomOf(server, selectionName());
    const std::unique_ptr<xcb_get_selection_owner_reply_t, FreeReply> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

#else

bool hasEmbeddingTray() {
    return false;
}

#endif

}  // namespace vantor
