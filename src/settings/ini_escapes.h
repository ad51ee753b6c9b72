#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor {

// How keys and texts are written in an ini file. Any thread.

/// Letters, digits and `_-.` as they are, / as \, everything else as %20.
std::string escapedIniKey(std::string_view key);

/// Also %U20AC.
std::string unescapedIniKey(std::string_view written);

/// Line breaks and the like as \n or \x1f, in double quotes where it has `;`, `,` or `=` in it, or
/// blanks at its ends.
std::string escapedIniText(std::string_view text);

/// Absent for a list: a comma outside quotes.
std::optional<std::string> unescapedIniText(std::string_view written);

}  // namespace vantor
