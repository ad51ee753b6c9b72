#include <array>
#include <limits>

#include "platform/linux/memory/mem_info.h"
#include "platform/linux/memory/memory_breakdown.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto info = MemInfo::parse(text);
    if (!info) return 0;
    require(text.back() == '\n' && info->total > 0);
    constexpr std::uint64_t none = 0, some = 1'048'576,
                            all = std::numeric_limits<std::uint64_t>::max();
    for (const std::uint64_t beside : std::array{none, some, all}) {
        const auto shares =
            MemoryBreakdown::of(*info, {beside, ArcStats{beside, beside / 4}, beside});
        require(shares.has_value() == info->free.has_value());
        if (!shares) return 0;
        // These sums cannot wrap: a total of kilobytes has ten bits to spare.
        const std::uint64_t used = shares->active + shares->wired + shares->compressor;
        const std::uint64_t cached = shares->inactive + shares->purgeable;
        require(shares->total == info->total);
        require(used <= shares->total && cached <= shares->total - used);
    }
    return 0;
}
