#include "app/tray/embedding_tray.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QtGlobal>

#include <cstdint>
#include <utility>

#include "app/window/linux_x11.h"

namespace vantor {

#if QT_CONFIG(xcb)

namespace {

QByteArray selectionName() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    const bool isNamed = xcb_parse_display(nullptr, &host, &display, &screen) != 0;
    const std::unique_ptr<char, FreeXcbReply> parsed(isNamed ? host : nullptr);
    return "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen);
}

xcb_window_t ownerOf(xcb_connection_t* server, xcb_atom_t selection) {
    const XcbReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

xcb_atom_t traySelection(xcb_connection_t* server) {
    static const xcb_atom_t selection =
        atomOf(server, askForAtom(server, selectionName().toStdString()));
    return selection;
}

class EmbeddingTrayWatch : public QAbstractNativeEventFilter {
  public:
    EmbeddingTrayWatch(xcb_connection_t* server, std::function<void()> onChange)
        : server_(server),
          onChange_(std::move(onChange)),
          selection_(traySelection(server)),
          manager_(atomOf(server, askForAtom(server, "MANAGER"))) {
        watchOwner();
        qGuiApp->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override {
        if (type != "xcb_generic_event_t") return false;
        const auto* const event = static_cast<const xcb_generic_event_t*>(message);
        constexpr auto sentByAClient = 0x80;
        switch (event->response_type & ~sentByAClient) {
            case XCB_CLIENT_MESSAGE: {
                const auto* const said = static_cast<const xcb_client_message_event_t*>(message);
                if (said->type != manager_ || said->data.data32[1] != selection_) return false;
                watchOwner();
                onChange_();
                return false;
            }
            case XCB_DESTROY_NOTIFY:
                if (static_cast<const xcb_destroy_notify_event_t*>(message)->window != owner_)
                    return false;
                owner_ = XCB_WINDOW_NONE;
                onChange_();
                return false;
            default:
                return false;
        }
    }

  private:
    void watchOwner() {
        owner_ = ownerOf(server_, selection_);
        if (owner_ == XCB_WINDOW_NONE) return;
        // What the toolkit asks for as well where it has an icon there: neither takes it back.
        const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(server_, owner_, XCB_CW_EVENT_MASK, &events);
    }

    xcb_connection_t* server_;  // of the toolkit
    std::function<void()> onChange_;
    xcb_atom_t selection_;
    xcb_atom_t manager_;
    xcb_window_t owner_ = XCB_WINDOW_NONE;
};

}  // namespace

bool hasEmbeddingTray() {
    xcb_connection_t* const server = x11Connection();
    return server && ownerOf(server, traySelection(server)) != XCB_WINDOW_NONE;
}

std::unique_ptr<QAbstractNativeEventFilter> watchEmbeddingTrays(std::function<void()> onChange) {
    xcb_connection_t* const server = x11Connection();
    return server ? std::make_unique<EmbeddingTrayWatch>(server, std::move(onChange)) : nullptr;
}

#else

bool hasEmbeddingTray() {
    return false;
}

std::unique_ptr<QAbstractNativeEventFilter> watchEmbeddingTrays(std::function<void()>) {
    return nullptr;
}

#endif

}  // namespace vantor
