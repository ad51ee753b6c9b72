#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantor {

/// How large the cache of ZFS is, in bytes: the lines "size" and "c_min" of
/// /proc/spl/kstat/zfs/arcstats.
struct ArcStats {
    std::uint64_t size = 0;
    std::uint64_t minimum = 0;  ///< it never gives back more than what is above this

    bool operator==(const ArcStats&) const = default;

    std::uint64_t reclaimable() const { return size > minimum ? size - minimum : 0; }

    /// Absent when either line is missing, malformed or cut. Pure.
    static std::optional<ArcStats> parse(std::string_view text);
};

}  // namespace vantor
