#include <algorithm>

#include "platform/linux/network/link_source.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::span payload(data, size);
    LinkSource::Address address;
    LinkSource::Address reused;  // what it held before must not show
    reused.bytes.fill(9);
    const AddressVerdict verdict = parseAddress(std::as_bytes(payload), address);
    require(parseAddress(std::as_bytes(payload), reused) == verdict);
    if (verdict != AddressVerdict::address) return 0;
    require(address == reused);
    const std::ptrdiff_t length = address.isIPv6 ? 16 : 4;
    require(size >= 12 + static_cast<std::size_t>(length));
    const auto bytes = std::span(address.bytes);
    const auto said = payload.subspan(12);
    require(std::search(said.begin(), said.end(), bytes.begin(), bytes.begin() + length) !=
            said.end());
    require(std::all_of(bytes.begin() + length, bytes.end(), [](auto byte) { return byte == 0; }));
    return 0;
}
