#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantor {

/// The lines of /proc/meminfo (https://docs.kernel.org/filesystems/proc.html, "meminfo") that the
/// memory's shares are made of, in units of 1024 bytes, which the kernel writes as "kB". A line
/// that is missing or malformed is absent; one that says zero is zero.
struct MemInfo {
    using Amount = std::optional<std::uint64_t>;

    std::uint64_t total = 0;  ///< never zero in a parsed value
    Amount free;
    Amount available;  ///< since Linux 3.14
    Amount buffers;
    Amount cached;
    Amount activeFile;    ///< since 2.6.28
    Amount inactiveFile;  ///< since 2.6.28
    Amount mlocked;
    Amount swapTotal;
    Amount zswap;  ///< memory that the zswap pool takes; since 5.19
    Amount shmem;
    Amount sReclaimable;
    Amount sUnreclaim;
    Amount kernelStack;
    Amount pageTables;
    Amount percpu;

    bool operator==(const MemInfo&) const = default;

    /// Absent when there is no total, and when the text was cut inside a line. Pure.
    static std::optional<MemInfo> parse(std::string_view text);
};

}  // namespace vantor
