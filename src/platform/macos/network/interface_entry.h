#pragma once

#include <cstdint>

#include "platform/darwin/interface_calls.h"

namespace vantor {

/// The numbers by which macOS tells the families of addresses apart.
namespace address_family {
inline constexpr std::uint8_t ipv4 = 2;
inline constexpr std::uint8_t link = 18;
inline constexpr std::uint8_t ipv6 = 30;
}  // namespace address_family

/// Pure.
InterfaceCalls::Family familyOf(std::uint8_t number);

/// The kernel keeps the interface of a link-local IPv6 address within the address, in the third and
/// fourth byte, and not every call takes it out before it hands the address over. Moves it to the
/// scope where that is still 0. Other addresses stay as they are. Pure.
void separateScope(InterfaceCalls::Entry& entry);

}  // namespace vantor
