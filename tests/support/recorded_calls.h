#pragma once

#include <filesystem>
#include <memory>

#include "platform/linux/files/linux_calls.h"
#include "platform/simulated/fake_clock.h"

namespace vantor {

/// Answers the system calls of a recorded machine from the files in `folder`, which are read at
/// each call (tests/machines/README.md tells their formats). A malformed file throws.
///
/// Asking a file system that the recording does not list fails the running test: network mounts
/// must never be touched. The processes' CPU clocks answer nothing, so that times come from
/// /proc/PID/stat; their uptime is that of `clock`.
LinuxCalls recordedCalls(const std::filesystem::path& folder,
                         std::shared_ptr<const FakeClock> clock);

}  // namespace vantor
