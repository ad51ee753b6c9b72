#include "platform/linux/linux_process_info.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "platform/linux/cpu_identity.h"

namespace vantor {

double LinuxProcessInfo::systemUptime() const {
    // The standard library's steady clock is CLOCK_MONOTONIC here.
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

std::int64_t LinuxProcessInfo::processorCount() const {
    if (const auto count = countPresentProcessors(roots_)) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_CONF));
}

std::int64_t LinuxProcessInfo::activeProcessorCount() const {
    if (const auto count = countOnlineProcessors(roots_)) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN));
}

double LinuxProcessInfo::secondsSinceBoot() const {
    return systemUptime();
}

std::uint64_t LinuxProcessInfo::physicalMemory() const {
    return 0;
}

void LinuxProcessInfo::hostName(std::string& name) const {
    name.clear();
}

ProcessInfo::Version LinuxProcessInfo::operatingSystemVersion() const {
    return {};
}

std::optional<std::string> LinuxProcessInfo::operatingSystemName() const {
    return std::nullopt;
}

int LinuxProcessInfo::thermalState() {
    return -1;
}

bool LinuxProcessInfo::isLowPowerModeEnabled() {
    return false;
}

}  // namespace vantor
