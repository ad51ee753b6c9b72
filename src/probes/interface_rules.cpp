#include "probes/interface_rules.h"

#include <arpa/inet.h>

#include <array>
#include <charconv>
#include <cstdint>

namespace vantor {

bool isEligible(const NetworkInterfaces::Record& record) {
    return record.isUp && record.isRunning && !record.isLoopback;
}

bool isIPv4LinkLocal(const char* address) {
    std::array<std::uint8_t, 4> bytes{};
    return ::inet_pton(AF_INET, address, bytes.data()) == 1 && bytes[0] == 169 && bytes[1] == 254;
}

bool isIPv6LinkLocal(std::string_view address) {
    const auto colon = address.find(':');
    if (colon == std::string_view::npos) return false;
    const char* const end = address.data() + colon;
    std::uint16_t group = 0;
    const auto [rest, error] = std::from_chars(address.data(), end, group, 16);
    return error == std::errc{} && rest == end && (group & 0xFFC0U) == 0xFE80U;
}

void offerIPv4Address(std::string& held, const char* offered) {
    if (held.empty() || (isIPv4LinkLocal(held.c_str()) && !isIPv4LinkLocal(offered))) {
        held = offered;
    }
}

void offerIPv6Address(std::string& held, const char* offered) {
    if (held.empty() || (isIPv6LinkLocal(held) && !isIPv6LinkLocal(offered))) held = offered;
}

}  // namespace vantor
