#include "platform/linux/network/route_source.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto payload = std::as_bytes(std::span(data, size));
    RouteSource::Route route;
    // What a route held before must not show.
    RouteSource::Route reused{9, 9, 9, 9, true};
    const bool isWhole = parseRoute(payload, route);
    require(parseRoute(payload, reused) == isWhole);
    if (!isWhole) return 0;
    require(route == reused);
    require(size >= 12 && route.family == data[0]);
    // The length of the destination, in bits: a default route has none.
    if (route.isDefault) require(data[1] == 0);
    return 0;
}
