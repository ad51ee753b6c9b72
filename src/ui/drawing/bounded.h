#pragma once

#include <algorithm>

namespace vantor {

/// `value`, or the bound that it is beyond; `low` is at most `high`. For what is done at every
/// pixel: std::clamp checks its bounds in a hardened build.
template <class Number>
constexpr Number bounded(Number value, Number low, Number high) {
    return std::min(std::max(value, low), high);
}

}  // namespace vantor
