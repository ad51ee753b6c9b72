#pragma once

#include "platform/linux/linux_roots.h"
#include "platform/process_info.h"

namespace vantor {

/// CLOCK_MONOTONIC and the kernel's lists of processors.
class LinuxProcessInfo : public ProcessInfo {
  public:
    explicit LinuxProcessInfo(LinuxRoots roots) : roots_(std::move(roots)) {}

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
};

}  // namespace vantor
