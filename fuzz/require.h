#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace vantor::fuzz {

/// Ends the run as a finding.
inline void require(bool holds) {
    if (!holds) std::abort();
}

/// The input as the text of a file.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace vantor::fuzz
