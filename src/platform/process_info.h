#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vantor {

/// What the operating system tells a program about its surroundings.
///
/// Any thread, but for thermalState and isLowPowerModeEnabled: those one thread at a time.
class ProcessInfo {
  public:
    struct Version {
        int major = 0;
        int minor = 0;
        int patch = 0;
    };

    virtual ~ProcessInfo() = default;

    /// Seconds on the monotonic clock that all intervals and rates are measured with. Linux:
    /// CLOCK_MONOTONIC.
    virtual double systemUptime() const = 0;

    /// Seconds since the machine was started, as people are told them. macOS: the same as
    /// systemUptime. Linux: /proc/uptime, which counts suspended time too.
    virtual double secondsSinceBoot() const = 0;

    /// Processors the machine has, and those in use; both positive.
    virtual std::int64_t processorCount() const = 0;
    virtual std::int64_t activeProcessorCount() const = 0;

    /// Bytes of memory the machine has.
    virtual std::uint64_t physicalMemory() const = 0;

    /// Writes the host's network name into `name`, whose storage is reused.
    virtual void hostName(std::string& name) const = 0;

    virtual Version operatingSystemVersion() const = 0;

    /// The system's own name with its version, where that is not made of the version numbers.
    /// macOS: absent. Linux: PRETTY_NAME of os-release, e.g. "Debian GNU/Linux 12 (bookworm)".
    virtual std::optional<std::string> operatingSystemName() const = 0;

    /// Whether the operating system is at least that version. Linux, which has no such versions,
    /// answers yes and so gets every modern branch.
    virtual bool isOperatingSystemAtLeast(int major, int minor, int patch) const = 0;

    /// 0 nominal, 1 fair, 2 serious, 3 critical; anything else is unknown. Linux: the thermal zones
    /// against their own trip points.
    virtual int thermalState() = 0;

    /// Linux: platform_profile and energy_performance_preference.
    virtual bool isLowPowerModeEnabled() = 0;
};

}  // namespace vantor
