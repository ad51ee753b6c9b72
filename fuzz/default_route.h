#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "require.h"

namespace vantor::fuzz {

/// What holds for either table of routes. `best` and `worst` are lines of default routes over the
/// links "best" and "worst" that no other route can be before, or behind.
inline void requireDefaultRoute(std::optional<std::string_view> (*parse)(std::string_view),
                                std::string_view text, const std::string& best,
                                const std::string& worst) {
    const auto name = parse(text);
    if (name) {
        require(name->data() >= text.data() &&
                name->data() + name->size() <= text.data() + text.size());
        require(!name->empty() && name->size() <= 15 && *name != "lo" && *name != "*");
        require(name->find_first_of(" \t\n") == std::string_view::npos);
    }
    const std::string lines(text.substr(0, text.rfind('\n') + 1));
    require(parse(lines) == name);  // a line that was cut does not count
    require(parse(lines + best.substr(0, best.size() - 1)) == name);
    require(parse(best + lines) == "best");
    require(parse(lines + worst) == name.value_or("worst"));
    require(parse(lines + lines) == name);
}

}  // namespace vantor::fuzz
