#include <string>

#include "platform/linux/processes/reclaim_watch.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string text(fuzz::textOf(data, size));
    const auto count = parseReclaimCount(text);
    if (!count) return 0;
    // Every line counts by itself, and other lines do not.
    require(parseReclaimCount(text + "pgsteal_direct 5\n") == *count + 5);
    require(parseReclaimCount(text + "pgfree 5\n") == *count);
    // A text that was cut has no line end.
    require(!parseReclaimCount(text + "pgsteal_direct 5"));
    return 0;
}
