#include <algorithm>

#include "platform/linux/network/link_source.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto payload = std::as_bytes(std::span(data, size));
    LinkSource::Link link;
    // What a link held before must not show.
    LinkSource::Link reused{9, 9, 9, 9, true, "another-link"};
    const bool isWhole = parseLink(payload, link);
    require(parseLink(payload, reused) == isWhole);
    if (!isWhole) return 0;
    require(link == reused);
    require(size >= 16);
    require(link.name.size() <= 15 && link.name.find('\0') == link.name.npos);
    const auto name = std::as_bytes(std::span(link.name));
    const auto found = std::search(payload.begin(), payload.end(), name.begin(), name.end());
    require(name.empty() || found != payload.end());
    // A header, an attribute's header and four counters of 32 bits at least.
    if (link.hasCounters) require(size >= 16 + 4 + 4 * 4);
    if (!link.hasCounters) require(link.receivedBytes == 0 && link.sentBytes == 0);
    return 0;
}
