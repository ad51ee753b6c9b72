#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

#include "app/session/app_action.h"

namespace vantor {

/// The result of claiming to be the one program of a session.
enum class ClaimOutcome {
    owned,        ///< there is no other; later starts will find this program
    handedOver,   ///< another one is running, and has confirmed
    noAnswer,     ///< another one is running, but does not answer in time
    unavailable,  ///< cannot be determined
};

/// Called on the main thread with what another start, or a peer on the bus, asks for.
using OnActivate = std::function<void(const Activation& activation)>;

/// The program's name on the bus, and that of its desktop file: what a desktop finds its windows,
/// its icon and its menu entry by.
inline constexpr auto applicationIdentifier = "com.kestrone.Vantor";

/// `text` if it can be a desktop's token (a short line of printable ASCII), else empty: it comes
/// from untrusted programs and goes into the environment.
QString checkedToken(const QString& text);

/// The keys of Wayland's and X11's tokens in the platform data of a call.
inline constexpr auto waylandTokenKey = QLatin1StringView("activation-token");
inline constexpr auto x11TokenKey = QLatin1StringView("desktop-startup-id");

/// The first valid token, Wayland's before X11's; empty when there is none.
QString tokenIn(const QVariantMap& platformData);

}  // namespace vantor
