#pragma once

#include <QString>

#include <functional>

namespace vantor {

/// What came of the attempt to be the one program of a session.
enum class ClaimOutcome {
    owned,        ///< nobody else is; who comes later will find this program
    handedOver,   ///< another one is, and has promised to come forward
    noAnswer,     ///< another one is, but does not answer in time
    unavailable,  ///< there is no way to tell
};

/// Told on the main thread whenever another start asks this program to come forward, with the
/// token that allows it to (empty when there is none).
using OnActivate = std::function<void(const QString& activationToken)>;

/// What the program is known as to others.
inline constexpr auto applicationIdentifier = "com.kestrone.Vantor";

/// `text` if it can be a token of a desktop (a short line of printable ASCII), else nothing: it may
/// come from anyone and goes into the environment.
QString checkedToken(const QString& text);

}  // namespace vantor
