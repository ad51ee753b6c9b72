#include "platform/linux/network/link_source.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto payload = std::as_bytes(std::span(data, size));
    LinkSource::Link link;
    // What a link held before must not show.
    LinkSource::Link reused{9, 9, 9, 9, true, "another-link"};
    const bool isWhole = parseLinkCounters(payload, link);
    require(parseLinkCounters(payload, reused) == isWhole);
    require(reused.name == "another-link" && reused.flags == 9);
    if (!isWhole) return 0;
    require(link.index == reused.index && link.hasCounters);
    require(link.receivedBytes == reused.receivedBytes && link.sentBytes == reused.sentBytes);
    // A header, an attribute's header and four counters.
    require(size >= 12 + 4 + 4 * 8);
    return 0;
}
