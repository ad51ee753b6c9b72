#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantor {

/// The graphics devices that the system offers to programs. One thread at a time.
///
/// macOS: MTLCopyAllDevices, MTLCreateSystemDefaultDevice. Linux: /sys/class/drm/card[0-9]+.
class GraphicsDevices {
  public:
    struct Device {
        std::uint64_t registryID = 0;  ///< the same device's `Accelerators::registryEntryID`
        std::string name;
        bool hasUnifiedMemory = false;                   ///< shares the system's memory
        std::uint64_t recommendedMaxWorkingSetSize = 0;  ///< bytes; 0 when unknown
    };

    virtual ~GraphicsDevices() = default;

    /// Replaces `devices`; none where there is none or the system does not tell.
    virtual void copyAllDevices(std::vector<Device>& devices) = 0;

    /// The registry identifier of the device that programs get when they do not choose.
    virtual std::optional<std::uint64_t> systemDefaultDevice() = 0;
};

}  // namespace vantor
