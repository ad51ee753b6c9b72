#include "app/window/linux_x11.h"

#if QT_CONFIG(xcb)
#include <QGuiApplication>

#include <cstdint>

namespace vantor {

xcb_connection_t* x11Connection() {
    const auto* const application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Other platforms than that of X displays may have the interface, and no connection behind it.
    return application ? application->connection() : nullptr;
}

xcb_intern_atom_cookie_t askForAtom(xcb_connection_t* server, std::string_view name) {
    return xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t atomOf(xcb_connection_t* server, xcb_intern_atom_cookie_t question) {
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, question, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace vantor
#endif
