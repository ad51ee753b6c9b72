#pragma once

#include <chrono>
#include <cstdint>

#include "platform/unique_function.h"

namespace vantor {

/// The main thread's queue of work and its timers.
///
/// post may be called from any thread; everything else, and every task, belongs to the main
/// thread. Tasks run one at a time in the order posted. A loop that has ended drops what it is
/// given.
class MainLoop {
  public:
    using TimerID = std::uint64_t;  ///< never 0

    virtual ~MainLoop() = default;

    /// Runs `task` on the main thread, never from within this call.
    virtual void post(Task task) = 0;

    /// Runs `task` once, no sooner than after `delay`; a delay below zero counts as zero.
    virtual TimerID runAfter(std::chrono::nanoseconds delay, Task task) = 0;

    /// Drops a task that has not run yet. Unknown and finished timers are ignored.
    virtual void cancel(TimerID timer) = 0;
};

}  // namespace vantor
