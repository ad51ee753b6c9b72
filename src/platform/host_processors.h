#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

/// The kernel's cumulative processor tick counters.
///
/// A reading happens under a port: acquire it, ask, release it, on every path. Counters are 32 bits
/// wide and wrap; each processor has four, in the order user, system, idle, nice. One thread at a
/// time. macOS: mach_host_self, host_statistics, host_processor_info, vm_deallocate. Linux: the cpu
/// lines of /proc/stat, read once per port.
class HostProcessors {
  public:
    using Port = std::uint32_t;

    /// Four counters for each processor, owned by the kernel until released.
    struct ProcessorArray {
        std::uint32_t processorCount = 0;
        const std::uint32_t* words = nullptr;
        std::uint32_t wordCount = 0;
    };

    virtual ~HostProcessors() = default;

    virtual Port acquirePort() = 0;
    virtual void releasePort(Port port) = 0;

    /// Fills `counters` with the ticks of all processors together; gives how many it filled, or
    /// nothing when the call failed.
    virtual std::optional<std::size_t> totalTicks(Port port, std::span<std::uint32_t> counters) = 0;

    /// The ticks of each online processor in the kernel's order, or nothing when the call failed.
    /// An answer with words must be given back with releaseArray, whatever it says.
    virtual std::optional<ProcessorArray> processorTicks(Port port) = 0;
    virtual void releaseArray(const std::uint32_t* words, std::size_t byteCount) = 0;
};

}  // namespace vantor
