#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantor {

/// The place of each key among them, by its bytes; equal keys have equal ranks.
std::vector<std::uint32_t> ranksOfKeys(std::vector<std::string> keys);

}  // namespace vantor
