#include "platform/linux/network/route_tables.h"

#include "default_route.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const std::string_view text = fuzz::textOf(data, size);
    fuzz::requireDefaultRoute(ipv4DefaultInterface, text,
                              "best 00000000 010200C0 0003 0 0 0 00000000\n",
                              "worst\t00000000\t00000000\t0001\t0\t0\t-1\t00000000\t0\t0\t0\n");
    return 0;
}
