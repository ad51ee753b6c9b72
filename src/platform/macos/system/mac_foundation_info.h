#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/object_messages.h"
#include "platform/macos/frameworks/property_conversion.h"
#include "platform/process_info.h"

namespace vantor {

/// What NSProcessInfo tells; each absent where it does not. Any thread.
class MacFoundationInfo {
  public:
    explicit MacFoundationInfo(std::shared_ptr<const Frameworks> frameworks);

    std::optional<int> thermalState() const;
    /// Since version 12.0.
    std::optional<bool> isLowPowerModeEnabled() const;
    std::optional<ProcessInfo::Version> operatingSystemVersion() const;
    /// Into storage that is reused; false, and `name` empty, when there is none.
    ///
    /// May ask the network's name servers, and take as long as these do.
    bool hostName(std::string& name) const;
    /// Positive, or absent.
    std::optional<std::int64_t> processorCount() const;
    std::optional<std::int64_t> activeProcessorCount() const;
    std::optional<std::uint64_t> physicalMemory() const;  ///< bytes
    /// Seconds, without those that the machine slept.
    std::optional<double> systemUptime() const;

  private:
    /// The one object of its class, borrowed.
    ObjectMessages::Object processInfo() const;
    std::optional<std::int64_t> count(const char* method) const;

    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    ObjectMessages messages_;
};

}  // namespace vantor
