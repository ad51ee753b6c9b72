#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

namespace vantor {

/// The result of claiming to be the one program of a session.
enum class ClaimOutcome {
    owned,        ///< there is no other; later starts will find this program
    handedOver,   ///< another one is running, and has confirmed to come forward
    noAnswer,     ///< another one is running, but does not answer in time
    unavailable,  ///< cannot be determined
};

/// Called on the main thread when another start asks this program to come forward, with the token
/// that allows it to (empty when there is none).
using OnActivate = std::function<void(const QString& activationToken)>;

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
