#include <arpa/inet.h>

#include <array>
#include <string>

#include "probes/interface_accumulators.h"

#include "require.h"

/// The input is an address that is held, a line end, and one that is offered.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::string text(fuzz::textOf(data, size));
    std::erase(text, '\0');
    const auto lineEnd = std::min(text.find('\n'), text.size());
    const std::string held = text.substr(0, lineEnd);
    const std::string offered = lineEnd < text.size() ? text.substr(lineEnd + 1) : "";

    std::array<std::uint8_t, 16> bytes{};
    if (::inet_pton(AF_INET6, held.c_str(), bytes.data()) == 1) {
        const bool isLinkLocal = bytes[0] == 0xFE && (bytes[1] & 0xC0) == 0x80;
        require(isIPv6LinkLocal(held) == isLinkLocal &&
                isIPv6LinkLocal(held + "%eth0") == isLinkLocal);
        require(!isIPv4LinkLocal(held.c_str()));
    }
    if (::inet_pton(AF_INET, held.c_str(), bytes.data()) == 1) {
        require(isIPv4LinkLocal(held.c_str()) == (bytes[0] == 169 && bytes[1] == 254));
        require(!isIPv6LinkLocal(held));
    }

    std::string taken = held;
    offerIPv4Address(taken, offered.c_str());
    require(taken == held || taken == offered);
    if (taken != held) require(held.empty() || isIPv4LinkLocal(held.c_str()));
    taken = held;
    offerIPv6Address(taken, offered.c_str());
    require(taken == held || taken == offered);
    if (taken != held) require(held.empty() || isIPv6LinkLocal(held));
    return 0;
}
