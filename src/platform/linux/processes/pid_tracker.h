#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/files/kernel_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/processes/pid_listing.h"
#include "platform/linux/processes/process_clocks.h"

namespace vantor {

/// Which processes there are, without listing /proc each time.
///
/// The kernel assigns identifiers upwards and publishes the last one
/// (/proc/sys/kernel/ns_last_pid). So new processes lie between the last one now and before, and
/// the CPU clocks tell which of those identifiers are processes; ended ones are passed in by the
/// caller. The folder itself is listed when
/// this cannot be done (no such file, no clocks, a wrap, a long pause, too many new ones), and
/// every thirty seconds all the same: a restored checkpoint may choose its identifiers.
class PIDTracker {
  public:
    /// `clocks` must be those of the processes that /proc lists; null when there are none.
    PIDTracker(const LinuxRoots& roots, std::shared_ptr<ProcessClocks> clocks);

    /// Counts anew at `now` (seconds of uptime), leaving out `gone` (ascending). False when that
    /// failed; the count is then empty.
    bool update(double now, std::span<const std::int32_t> gone);

    /// Ascending, which is the kernel's own order.
    std::span<const std::int32_t> pids() const { return pids_; }

    /// Whether the identifier may be of another process than before the last update: it has been
    /// assigned since, or nobody knows. One that a process chose for itself is known by the next
    /// listing.
    bool mayBeNew(std::int32_t pid) const {
        return !followedFrom_ || (pid > *followedFrom_ && pid <= *lastSeen_);
    }

    /// How often the folder has been listed.
    std::uint64_t listings() const { return listings_; }

  private:
    bool list(double now);
    bool tryToFollow(double now, std::span<const std::int32_t> gone);
    std::optional<std::int32_t> lastPID();

    FileDescriptor proc_;
    KernelFile lastPIDFile_;
    std::shared_ptr<ProcessClocks> clocks_;
    PIDListing listing_;
    std::vector<std::int32_t> pids_;
    std::vector<std::int32_t> nextPIDs_;  // trades places with the former
    std::vector<std::int32_t> born_;
    // Where the kernel was at the last look and at the one before: a process that is just being
    // made has its identifier already but is not there yet, so each range is looked through twice.
    std::optional<std::int32_t> lastSeen_;
    std::optional<std::int32_t> seenBefore_;
    std::optional<std::int32_t> followedFrom_;  // by the last update; none where it listed
    double listedUptime_ = 0;
    double updatedUptime_ = 0;
    std::uint64_t listings_ = 0;
};

}  // namespace vantor
