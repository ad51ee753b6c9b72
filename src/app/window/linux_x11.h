#pragma once

#include <QtGui/qtguiglobal.h>

#if QT_CONFIG(xcb)
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace vantor {

struct FreeXcbReply {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): xcb's convention
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply of the X server's, which the caller owns.
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, FreeXcbReply>;

/// Returns the toolkit's own connection to the X server, which it keeps until it ends; null where
/// it shows its windows elsewhere. Called on the main thread.
xcb_connection_t* x11Connection();

/// Returns the question for an atom, to be handed to `atomOf()`: several can be on their way at
/// once.
xcb_intern_atom_cookie_t askForAtom(xcb_connection_t* server, std::string_view name);

/// Returns XCB_ATOM_NONE where the server does not answer. Waits for it.
xcb_atom_t atomOf(xcb_connection_t* server, xcb_intern_atom_cookie_t question);

}  // namespace vantor
#endif
