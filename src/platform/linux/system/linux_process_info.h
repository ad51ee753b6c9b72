#pragma once

#include "platform/linux/files/small_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/power/low_power_mode.h"
#include "platform/linux/sensors/thermal_zones.h"
#include "platform/process_info.h"

namespace vantor {

/// Clocks, names and states of the system that the program runs on. The two files that are read
/// each time are opened with the object; where they are missing, system calls answer.
///
/// The host's name is /proc/sys/kernel/hostname, else gethostname, else "localhost". The version is
/// that of the kernel.
class LinuxProcessInfo : public ProcessInfo {
  public:
    explicit LinuxProcessInfo(const LinuxRoots& roots);

    double systemUptime() const override;
    double secondsSinceBoot() const override;
    std::int64_t processorCount() const override;
    std::int64_t activeProcessorCount() const override;
    std::uint64_t physicalMemory() const override;
    void hostName(std::string& name) const override;
    Version operatingSystemVersion() const override;
    std::optional<std::string> operatingSystemName() const override;
    bool isOperatingSystemAtLeast(int, int, int) const override { return true; }
    int thermalState() override;
    bool isLowPowerModeEnabled() override;

  private:
    LinuxRoots roots_;
    SmallFile uptime_;
    SmallFile hostName_;
    ThermalZones thermalZones_;
    LowPowerMode lowPowerMode_;
};

/// The first number of a /proc/uptime text, in seconds; absent when malformed or cut. Pure.
std::optional<double> parseUptime(std::string_view text);

}  // namespace vantor
