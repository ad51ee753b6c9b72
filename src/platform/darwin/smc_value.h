#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

/// The temperature in degrees Celsius that a value of the system management controller holds.
/// `type` is "sp78" (big-endian, signed, in 256ths) or "flt " (a float in the machine's byte
/// order); bytes past these are ignored. Absent for other types, for too few bytes, and unless it
/// lies between -20 and 150, both excluded. Pure.
std::optional<double> smcTemperature(std::uint32_t type, std::span<const std::byte> bytes);

}  // namespace vantor
