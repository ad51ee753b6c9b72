#include "platform/linux/memory/arc_stats.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    if (const auto stats = ArcStats::parse(text)) {
        require(stats->reclaimable() <= stats->size);
        require(text.find("size") != text.npos && text.find("c_min") != text.npos);
    }
    return 0;
}
