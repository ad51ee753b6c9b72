#include "platform/linux/memory/memory_breakdown.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint64_t bytesPerUnit = 1024;

std::uint64_t lessen(std::uint64_t amount, std::uint64_t by) {
    return amount > by ? amount - by : 0;
}

/// What kernels without MemAvailable have to give, estimated as newer ones count it: what is free
/// above the low watermark, and of the page cache and the reclaimable slabs all but a half or the
/// watermark, whichever is less.
std::uint64_t estimateAvailable(const MemInfo& info, std::uint64_t minimumFree) {
    // No larger than the total, so that a damaged setting cannot overflow.
    const std::uint64_t watermark = std::min(minimumFree, info.total) * 5 / 4;
    std::uint64_t pageCache = 0;
    if (info.activeFile && info.inactiveFile) {
        pageCache = *info.activeFile + *info.inactiveFile;
    } else {
        pageCache = lessen(info.cached.value_or(0) + info.buffers.value_or(0),
                           info.shmem.value_or(0));  // shared memory is cache that stays
    }
    const std::uint64_t slabs = info.sReclaimable.value_or(0);
    const std::uint64_t sum = info.free.value_or(0) +
                              lessen(pageCache, std::min(pageCache / 2, watermark)) +
                              lessen(slabs, std::min(slabs / 2, watermark));
    return lessen(sum, watermark);
}

}  // namespace

std::optional<MemoryBreakdown> MemoryBreakdown::of(const MemInfo& info, const ExtraInputs& extra) {
    if (!info.free) return std::nullopt;
    const std::uint64_t total = info.total;
    const std::uint64_t free = std::min(*info.free, total);
    std::uint64_t available =
        info.available ? *info.available : estimateAvailable(info, extra.minimumFree.value_or(0));
    // Containers with a /proc of their own mix the host's figures with theirs; `free` does this.
    if (available > total) available = free;
    const std::uint64_t arc =
        std::min(extra.arc ? extra.arc->reclaimable() / bytesPerUnit : 0, total - available);

    MemoryBreakdown shares;
    shares.total = total;
    // MemAvailable may be the smaller one: the watermarks are taken off it.
    const std::uint64_t cached = lessen(available + arc, free);
    shares.purgeable = std::min(arc, cached);
    shares.inactive = cached - shares.purgeable;
    const std::uint64_t used = total - available - arc;
    const std::uint64_t compressor = extra.zramBytes / bytesPerUnit + info.zswap.value_or(0);
    shares.compressor = std::min(compressor, used);
    const std::uint64_t wired = info.sUnreclaim.value_or(0) + info.kernelStack.value_or(0) +
                                info.pageTables.value_or(0) + info.percpu.value_or(0) +
                                info.mlocked.value_or(0);
    shares.wired = std::min(wired, used - shares.compressor);
    shares.active = used - shares.compressor - shares.wired;
    return shares;
}

}  // namespace vantor
