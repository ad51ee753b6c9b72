#pragma once

#include <cstdint>

namespace vantor {

inline constexpr std::uint64_t nanosecondsPerSecond = 1'000'000'000;

}  // namespace vantor
