#include <algorithm>
#include <charconv>
#include <limits>

#include "platform/linux/memory/memory_breakdown.h"

#include "require.h"

namespace {

using vantor::MemInfo;
using Amount = std::optional<std::uint64_t>;

/// Takes the text up to the next blank; what is no number is absent.
Amount takeAmount(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find_first_of(" \n"));
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    std::uint64_t amount = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), amount);
    if (error != std::errc{}) return std::nullopt;
    return amount;
}

/// An amount that a parsed text may hold: its bytes fit into 64 bits.
Amount takeUnits(std::string_view& text) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max() / 1024;
    const Amount amount = takeAmount(text);
    return amount ? Amount(std::min(*amount, largest)) : std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::string_view text = fuzz::textOf(data, size);
    MemInfo info;
    info.total = std::max<std::uint64_t>(1, takeUnits(text).value_or(0));
    for (Amount MemInfo::*const amount :
         {&MemInfo::free, &MemInfo::available, &MemInfo::buffers, &MemInfo::cached,
          &MemInfo::activeFile, &MemInfo::inactiveFile, &MemInfo::mlocked, &MemInfo::swapTotal,
          &MemInfo::zswap, &MemInfo::shmem, &MemInfo::sReclaimable, &MemInfo::sUnreclaim,
          &MemInfo::kernelStack, &MemInfo::pageTables, &MemInfo::percpu}) {
        info.*amount = takeUnits(text);
    }
    MemoryBreakdown::ExtraInputs extra;
    extra.zramBytes = takeAmount(text).value_or(0);
    if (const Amount cache = takeAmount(text)) {
        extra.arc = ArcStats{*cache, takeAmount(text).value_or(0)};
    }
    extra.minimumFree = takeAmount(text);

    const auto shares = MemoryBreakdown::of(info, extra);
    require(shares.has_value() == info.free.has_value());
    if (!shares) return 0;
    require(shares->total == info.total);
    std::uint64_t left = shares->total;
    for (const std::uint64_t part :
         {shares->active, shares->wired, shares->compressor, shares->inactive, shares->purgeable}) {
        require(part <= left);
        left -= part;
    }
    // Without a cache of ZFS, used is what is not available, whatever its parts.
    if (!extra.arc && info.available && *info.available <= info.total) {
        require(shares->active + shares->wired + shares->compressor ==
                info.total - *info.available);
    }
    return 0;
}
