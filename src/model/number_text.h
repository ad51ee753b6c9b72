#pragma once

#include <span>
#include <string_view>

namespace vantor {

// Floating numbers as text, the same whatever the user's locale is. Each gives the text within
// `buffer`, and an empty one where that is too small. Any thread.

/// The fewest digits that read back as the same number, fixed or scientific, whichever is shorter;
/// 24 characters at most. `value` is finite.
std::string_view shortestText(std::span<char> buffer, double value);

/// As many digits after the point as `precision` says, exact halves to the even one.
std::string_view fixedText(std::span<char> buffer, double value, int precision);

}  // namespace vantor
