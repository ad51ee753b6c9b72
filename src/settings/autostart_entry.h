#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// The desktop's file that opens a program when its user logs in (freedesktop.org's Desktop
/// Application Autostart), as text.
namespace AutostartEntry {

/// Bytes; what is larger was not made for the purpose.
inline constexpr std::size_t largest = 65'536;

/// Whether a desktop would open the program for this entry: neither hidden nor switched off in
/// GNOME's way. An entry that is no entry opens nothing.
bool opens(std::string_view text);

/// The entry that opens `program`, a command or an absolute path, in the background. None where a
/// path cannot be written in such a file.
std::optional<std::string> textFor(std::string_view program);

}  // namespace AutostartEntry

}  // namespace vantor
