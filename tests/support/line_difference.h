#pragma once

#include <string>
#include <string_view>

namespace vantor {

/// The lines in which two texts differ, as `diff -u` has them: '-' before what only `one` has, '+'
/// before what only `other` has, and up to three lines around each; empty when they are equal.
std::string lineDifference(std::string_view one, std::string_view other);

}  // namespace vantor
