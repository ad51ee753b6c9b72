#pragma once

#include <span>
#include <string>

#include "app/session/app_action.h"

namespace vantor {

/// What the program was started for. Its options are commands to the one running program, for
/// launchers that know no other way; none of them configures anything.
struct CommandLine {
    enum class Kind {
        run,      ///< with `action`
        tell,     ///< print `text` and end
        mistake,  ///< the same, as an error
    };

    static constexpr int mistakeStatus = 2;

    Kind kind = Kind::run;
    AppAction action = AppAction::activate;
    std::string text{};  ///< one or more whole lines

    /// Of the arguments after the program's own name.
    static CommandLine of(std::span<const char* const> arguments);
};

}  // namespace vantor
