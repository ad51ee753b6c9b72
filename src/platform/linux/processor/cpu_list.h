#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vantor {

/// The processor numbers of a kernel list such as "0-3,8,10-11"
/// (https://docs.kernel.org/admin-guide/cputopology.html), ascending; absent when the text is not
/// such a list or not in order. An empty list is an empty answer.
std::optional<std::vector<std::uint32_t>> parseCPUList(std::string_view text);

}  // namespace vantor
