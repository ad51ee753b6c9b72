#pragma once

#include <linux/filter.h>

#include <span>
#include <vector>

#include "platform/linux/confinement/denied_calls.h"

namespace vantor {

/// What becomes of a denied call.
enum class Denial {
    isAnError,      ///< the call fails as its rule says
    endsTheProcess  ///< with SIGSYS, so that a test cannot miss one. A call that is said not to
                    ///< exist (ENOSYS) is merely an error: its caller has another way
};

/// The program by which the kernel looks at each system call, of the kernel's own instructions.
/// Calls of another architecture's numbering (32 bits, x32) are denied as well.
std::vector<sock_filter> makeCallFilter(std::span<const DeniedCall> denied, Denial denial);

/// Has the kernel run it for every thread of the process, from now on and for good. False when the
/// kernel has no such thing.
bool installCallFilter(std::span<const sock_filter> filter);

}  // namespace vantor
