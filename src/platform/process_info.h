#pragma once

#include <cstdint>

namespace vantor {

/// What the operating system tells a program about its surroundings. Any thread.
class ProcessInfo {
  public:
    virtual ~ProcessInfo() = default;

    /// Seconds on the monotonic clock that all intervals and rates are measured with. Linux:
    /// CLOCK_MONOTONIC.
    virtual double systemUptime() const = 0;

    /// Processors the machine has, and those in use; both positive.
    virtual std::int64_t processorCount() const = 0;
    virtual std::int64_t activeProcessorCount() const = 0;

    /// Whether the operating system is at least that version. Linux, which has no such versions,
    /// answers yes and so gets every modern branch.
    virtual bool isOperatingSystemAtLeast(int major, int minor, int patch) const = 0;
};

}  // namespace vantor
