#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantor {

/// What another start of the program, or a peer on the session bus, may ask a running one for.
enum class AppAction : std::uint8_t {
    activate,  ///< come forward
    pause,
    resume,
    refresh,
    exportSnapshot,
    settings,
    background,  ///< into the tray, where there is one
};

/// An action and the token that allows the program to come forward for it; empty where there is
/// none.
struct Activation {
    AppAction action = AppAction::activate;
    QString token{};
};

/// Its name on the bus, at the local socket and, after two dashes, on the command line.
std::string_view nameOf(AppAction action);

/// The action of that name; none for any other text.
std::optional<AppAction> actionNamed(std::string_view name);

}  // namespace vantor
