#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace vantor {

/// Room for any address with its zero byte.
using AddressText = std::array<char, 46>;

/// An address as numbers, exactly as inet_ntop writes it, but without its calls of printf: a
/// machine with many containers has hundreds of addresses to write at every reading. Pure; the text
/// lies within `room`.
std::string_view ipv4Text(std::span<const std::uint8_t, 4> bytes, AddressText& room);
std::string_view ipv6Text(std::span<const std::uint8_t, 16> bytes, AddressText& room);

}  // namespace vantor
