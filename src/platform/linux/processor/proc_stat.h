#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vantor {

/// The cpu lines of /proc/stat (https://docs.kernel.org/filesystems/proc.html, "kernel statistics
/// in /proc/stat"), in USER_HZ ticks since boot, folded into the four states that usage is made of.
struct ProcStat {
    struct Ticks {
        std::uint64_t user = 0;    ///< guest time is already inside
        std::uint64_t system = 0;  ///< with irq, softirq and steal
        std::uint64_t idle = 0;    ///< with iowait
        std::uint64_t nice = 0;    ///< guest_nice is already inside

        bool operator==(const Ticks&) const = default;
    };
    struct Processor {
        std::uint32_t id = 0;  ///< the kernel's number; offline processors leave gaps
        Ticks ticks;

        bool operator==(const Processor&) const = default;
    };

    std::optional<Ticks> total;         ///< of the "cpu" line; absent when missing or malformed
    std::vector<Processor> processors;  ///< of the "cpuN" lines, in their order
    bool processorsAreWhole = false;    ///< false when a cpuN line is malformed or cut

    /// Reads `text` into this value, reusing its storage. Pure: no file is touched.
    void parse(std::string_view text);
};

}  // namespace vantor
