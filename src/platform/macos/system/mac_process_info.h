#pragma once

#include <memory>

#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/system/mac_foundation_info.h"
#include "platform/process_info.h"

namespace vantor {

/// Clocks and counts of the kernel, and what only Foundation tells: the thermal state, the
/// low-power mode, and the names that the system goes by. Where Foundation does not answer, the
/// kernel names the version and the host; a thermal state is then unknown, and the low-power mode
/// off.
///
/// The uptime does not count while the machine sleeps, in every call that returns it.
class MacProcessInfo : public ProcessInfo {
  public:
    explicit MacProcessInfo(std::shared_ptr<const Frameworks> frameworks);

    double systemUptime() const override;
    double secondsSinceBoot() const override;
    std::int64_t processorCount() const override;
    std::int64_t activeProcessorCount() const override;
    std::uint64_t physicalMemory() const override;
    void hostName(std::string& name) const override;
    Version operatingSystemVersion() const override;
    std::optional<std::string> operatingSystemName() const override;
    bool isOperatingSystemAtLeast(int major, int minor, int patch) const override;
    int thermalState() override;
    bool isLowPowerModeEnabled() override;

  private:
    MacFoundationInfo foundation_;
    Version version_;  // cannot change while a program runs
};

}  // namespace vantor
