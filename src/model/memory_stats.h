#pragma once

#include <cstdint>
#include <tuple>

#include "model/field.h"

namespace vantor {

/// Physical memory in bytes. usedBytes + availableBytes is always totalBytes.
struct MemoryStats {
    std::uint64_t totalBytes = 0;  ///< installed
    std::uint64_t usedBytes = 0;   ///< active + wired + compressed, at most totalBytes
    std::uint64_t activeBytes = 0;
    std::uint64_t wiredBytes = 0;
    std::uint64_t compressedBytes = 0;  ///< held by the compressor
    std::uint64_t cachedBytes = 0;      ///< inactive + purgeable
    std::uint64_t availableBytes = 0;   ///< totalBytes - usedBytes

    bool operator==(const MemoryStats&) const = default;
};

template <>
inline constexpr auto fieldsOf<MemoryStats> =
    std::tuple{Field{"totalBytes", &MemoryStats::totalBytes},
               Field{"usedBytes", &MemoryStats::usedBytes},
               Field{"activeBytes", &MemoryStats::activeBytes},
               Field{"wiredBytes", &MemoryStats::wiredBytes},
               Field{"compressedBytes", &MemoryStats::compressedBytes},
               Field{"cachedBytes", &MemoryStats::cachedBytes},
               Field{"availableBytes", &MemoryStats::availableBytes}};

}  // namespace vantor
