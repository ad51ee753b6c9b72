#pragma once

#include <cstdint>
#include <memory>
#include <optional>

namespace vantor {

/// The CPU clocks of processes: the time that all threads of one, living and dead, have spent. The
/// cheapest thing that can be asked of a process, across users and without privileges. One thread
/// at a time.
class ProcessClocks {
  public:
    virtual ~ProcessClocks() = default;

    /// Nanoseconds; absent when there is no such process (a thread that leads none included) or no
    /// such clock. A clock id is a bare pid: it follows one that is used again. 0 is this program
    /// itself: where that has none, none of the answers says anything.
    virtual std::optional<std::uint64_t> read(std::int32_t pid) = 0;

    /// Seconds on the monotonic clock.
    virtual double now() = 0;
};

std::shared_ptr<ProcessClocks> makeLiveProcessClocks();

}  // namespace vantor
