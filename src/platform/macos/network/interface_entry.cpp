#include "platform/macos/network/interface_entry.h"

namespace vantor {

InterfaceCalls::Family familyOf(std::uint8_t number) {
    using Family = InterfaceCalls::Family;
    switch (number) {
        case address_family::ipv4:
            return Family::ipv4;
        case address_family::link:
            return Family::link;
        case address_family::ipv6:
            return Family::ipv6;
        default:
            return Family::other;
    }
}

void separateScope(InterfaceCalls::Entry& entry) {
    auto& bytes = entry.address;
    const bool isLinkLocal = entry.family == InterfaceCalls::Family::ipv6 && bytes[0] == 0xFE &&
                             (bytes[1] & 0xC0) == 0x80;
    if (!isLinkLocal) return;
    const auto index = static_cast<std::uint32_t>(bytes[2] << 8 | bytes[3]);
    if (entry.scope == 0) entry.scope = index;
    bytes[2] = 0;
    bytes[3] = 0;
}

}  // namespace vantor
