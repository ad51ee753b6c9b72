#pragma once

#include <string_view>

namespace vantor {

/// The order in which people expect names: numbers by their value ("disk2" before "disk10"),
/// letters without regard to case, and only then with it. Pure, and the same everywhere.
///
/// Below 0 when `a` comes first, above 0 when `b` does, 0 only for equal texts.
int compareStandard(std::string_view a, std::string_view b);

}  // namespace vantor
