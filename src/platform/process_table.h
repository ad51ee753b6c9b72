#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

/// The kernel's processes, the shape of libproc. One thread at a time.
///
/// macOS: proc_listallpids, proc_pidinfo, proc_pidpath, proc_name, mach_timebase_info. Linux:
/// /proc and the processes' CPU clocks.
class ProcessTable {
  public:
    /// The facts of one process; times are in native units (see timebase).
    struct TaskAllInfo {
        std::uint64_t startSeconds = 0;
        std::uint64_t startMicroseconds = 0;
        std::uint64_t residentSize = 0;  ///< bytes
        std::uint64_t totalUser = 0;
        std::uint64_t totalSystem = 0;
    };
    /// What taskAllInfo answers when it filled the whole record.
    static constexpr int taskAllInfoSize = 232;

    /// One native unit is numerator / denominator nanoseconds.
    struct Timebase {
        std::uint32_t numerator = 0;
        std::uint32_t denominator = 0;
    };

    virtual ~ProcessTable() = default;

    /// With an empty buffer the number of processes; else how many identifiers were written.
    /// Below 1 on failure.
    virtual int listAllPIDs(std::span<std::int32_t> buffer) = 0;

    /// taskAllInfoSize, or anything else when the process is gone or may not be looked at.
    virtual int taskAllInfo(std::int32_t pid, TaskAllInfo& info) = 0;

    /// The executable's path; bytes written, below 1 on failure.
    virtual int path(std::int32_t pid, std::span<char> buffer) = 0;

    /// Whether path and name may differ from what they were when path was last called. Systems that
    /// cannot tell say yes.
    virtual bool mayHaveNewPath(std::int32_t pid) = 0;

    /// The kernel's short name; bytes written, below 1 on failure.
    virtual int name(std::int32_t pid, std::span<char> buffer) = 0;

    virtual std::optional<Timebase> timebase() = 0;
};

}  // namespace vantor
