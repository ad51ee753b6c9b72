#include <arpa/inet.h>

#include <cstring>

#include "platform/linux/network/address_text.h"

#include "require.h"

/// The input is the bytes of an address, those that it lacks being zero.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::array<std::uint8_t, 16> bytes{};
    if (size > 0) std::memcpy(bytes.data(), data, std::min(size, bytes.size()));
    AddressText room;
    std::array<char, INET6_ADDRSTRLEN> expected{};
    const auto text6 = ipv6Text(bytes, room);
    require(::inet_ntop(AF_INET6, bytes.data(), expected.data(), expected.size()) != nullptr);
    require(text6 == expected.data() && room[text6.size()] == '\0');
    const auto text4 = ipv4Text(std::span(bytes).first<4>(), room);
    require(::inet_ntop(AF_INET, bytes.data(), expected.data(), expected.size()) != nullptr);
    require(text4 == expected.data() && room[text4.size()] == '\0');
    return 0;
}
