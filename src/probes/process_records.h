#pragma once

#include <cstdint>

#include "model/shared_text.h"

/// What the process reader remembers from call to call.
namespace vantor {

/// Tells two processes with the same identifier apart: when it was started, as the kernel says.
struct ProcessIdentity {
    std::uint64_t startSeconds = 0;
    std::uint64_t startMicroseconds = 0;

    bool operator==(const ProcessIdentity&) const = default;
};

struct CPUTimeSample {
    ProcessIdentity identity;
    std::uint64_t totalMachTime = 0;  ///< user and system time so far, in native units
};

struct ProcessMetadata {
    ProcessIdentity identity;
    SharedText name;
    SharedText command;
    double nextRefreshUptime = 0;  ///< from then on both are looked up again, if they may differ
    double nextCertainRefreshUptime = 0;  ///< from then on, even if the system says they do not
};

/// One process as read this call.
struct RawProcess {
    std::int32_t pid = 0;
    ProcessIdentity identity;
    SharedText name;
    SharedText command;
    std::uint64_t totalMachTime = 0;
    std::uint64_t residentMemoryBytes = 0;
};

}  // namespace vantor
