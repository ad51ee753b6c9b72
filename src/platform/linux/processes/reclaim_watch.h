#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/linux/files/kernel_list_file.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// How much the kernel has changed by itself in the memory of processes since the machine's start:
/// pages taken back (pgsteal*, pswpout) and small pages that became a large one or the reverse
/// (thp_collapse_alloc, thp_underused_split_page), of a text of /proc/vmstat. Only to be compared
/// with another one: it is the sum of unlike counts, and wraps. Absent when it is malformed or has
/// none of the first.
std::optional<std::uint64_t> parseReclaimCount(std::string_view vmstat);

/// Tells when the sizes of processes that do not run may have changed all the same. One thread at a
/// time.
class ReclaimWatch {
  public:
    explicit ReclaimWatch(const LinuxRoots& roots) : file_(roots.proc / "vmstat") {}

    /// Whether nothing of that kind has been seen in the half minute before `now` (seconds of
    /// uptime): long enough for a caller that reads every size within this time to have read each
    /// after the last change. What was before the first call does not count. Looks at the file once
    /// a second at most. False where the kernel does not tell.
    bool isCalm(double now);

  private:
    KernelListFile file_;
    std::optional<std::uint64_t> count_;
    std::optional<double> nextLook_;
    std::optional<double> movedUptime_;
};

}  // namespace vantor
