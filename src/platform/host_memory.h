#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

/// The kernel's counts of memory pages.
///
/// A reading happens under a port: acquire it, ask, release it, on every path. One thread at a
/// time. macOS: mach_host_self, host_statistics64 with HOST_VM_INFO64, host_page_size. Linux:
/// /proc/meminfo, read once per port.
class HostMemory {
  public:
    using Port = std::uint32_t;

    /// Where the counts stand in the statistics record, in 32-bit words.
    struct Layout {
        static constexpr std::size_t active = 1;
        static constexpr std::size_t inactive = 2;
        static constexpr std::size_t wired = 3;
        static constexpr std::size_t purgeable = 22;
        static constexpr std::size_t compressor = 32;
    };

    virtual ~HostMemory() = default;

    virtual Port acquirePort() = 0;
    virtual void releasePort(Port port) = 0;

    /// Fills the front of `words` with the statistics record; gives how many words it filled, or
    /// nothing when the call failed.
    virtual std::optional<std::size_t> vmStatistics(Port port, std::span<std::uint32_t> words) = 0;

    /// Bytes that one page of those counts stands for, or nothing when the call failed.
    virtual std::optional<std::uint64_t> pageSize(Port port) = 0;
};

}  // namespace vantor
