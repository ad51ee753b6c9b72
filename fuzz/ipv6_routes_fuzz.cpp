#include "platform/linux/network/route_tables.h"

#include "default_route.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const std::string_view text = fuzz::textOf(data, size);
    const std::string zero(32, '0');
    const std::string way = zero + " 00 " + zero + " 00 " + zero;
    fuzz::requireDefaultRoute(ipv6DefaultInterface, text, way + " 00000000 1 0 00000003 best\n",
                              way + " ffffffff 00000001 00000000 00000001    worst\n");
    return 0;
}
