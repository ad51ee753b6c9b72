#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// The value of a key in an os-release text (`man 5 os-release`): assignments as a shell has them,
/// in quotes or not, with backslashes; the last one counts. Absent when the key is missing, and
/// when its value is malformed or empty. Pure.
std::optional<std::string> findInOSRelease(std::string_view text, std::string_view key);

/// The system's name as people are told it: PRETTY_NAME, else NAME and VERSION, else "Linux". Pure.
std::string operatingSystemNameIn(std::string_view text);

}  // namespace vantor
