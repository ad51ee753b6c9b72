#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/memory/arc_stats.h"
#include "platform/linux/memory/mem_info.h"

namespace vantor {

/// What a machine's memory is used for, in units of 1024 bytes.
///
/// active + wired + compressor is what `free` calls used: MemTotal - MemAvailable, with the cache
/// of ZFS, which the kernel takes for its own memory, counted as available. inactive + purgeable is
/// what is available without being free.
struct MemoryBreakdown {
    std::uint64_t total = 0;
    std::uint64_t active = 0;      ///< used by what is not in the next two
    std::uint64_t wired = 0;       ///< the kernel's own, and locked by programs
    std::uint64_t compressor = 0;  ///< the pools of zram and zswap
    std::uint64_t inactive = 0;    ///< MemAvailable - MemFree
    std::uint64_t purgeable = 0;   ///< what ZFS can give back

    bool operator==(const MemoryBreakdown&) const = default;

    /// What /proc/meminfo does not say.
    struct ExtraInputs {
        std::uint64_t zramBytes = 0;
        std::optional<ArcStats> arc = std::nullopt;
        /// /proc/sys/vm/min_free_kbytes; asked for only where MemAvailable is missing.
        std::optional<std::uint64_t> minimumFree = std::nullopt;
    };

    /// Absent when it is not known how much is free. Pure.
    static std::optional<MemoryBreakdown> of(const MemInfo& info, const ExtraInputs& extra);
};

}  // namespace vantor
