#pragma once

#include <mach/mach.h>

namespace vantor {

/// Every mach_host_self adds a right to the port, and releaseHostPort takes one off: without it, a
/// program that runs for long would come to the end of what can be counted.
inline mach_port_t acquireHostPort() {
    return ::mach_host_self();
}

inline void releaseHostPort(mach_port_t port) {
    ::mach_port_deallocate(::mach_task_self(), port);
}

}  // namespace vantor
