#pragma once

#include <cstdint>

#include "platform/network_interfaces.h"

namespace vantor {

/// The numbers by which macOS tells the families of addresses apart.
namespace address_family {
inline constexpr std::uint8_t ipv4 = 2;
inline constexpr std::uint8_t link = 18;
inline constexpr std::uint8_t ipv6 = 30;
}  // namespace address_family

/// Pure.
NetworkInterfaces::Family familyOf(std::uint8_t number);

/// The kernel keeps the interface of a link-local IPv6 address within the address, in the third and
/// fourth byte, and not every call takes it out before it hands the address over. Moves it to the
/// scope where that is still 0. Other addresses stay as they are. Pure.
void separateScope(NetworkInterfaces::Entry& entry);

}  // namespace vantor
