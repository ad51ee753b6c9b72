#pragma once

#include <memory>
#include <vector>

#include "platform/graphics_devices.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/object_messages.h"
#include "platform/macos/frameworks/property_conversion.h"

namespace vantor {

/// MTLCopyAllDevices and the devices' registryID, name, hasUnifiedMemory and
/// recommendedMaxWorkingSetSize; where that function is missing, the default device alone.
///
/// MTLCreateSystemDefaultDevice makes a notebook with two graphics processors change to the fast
/// one, and asked again and again keeps it there. So it is only called where the devices themselves
/// do not tell which one it would give.
class MacGraphicsDevices : public GraphicsDevices {
  public:
    explicit MacGraphicsDevices(std::shared_ptr<const Frameworks> frameworks);

    void copyAllDevices(std::vector<Device>& devices) override;
    /// Receives the devices that were copied last.
    std::optional<std::uint64_t> systemDefaultDevice() override;

  private:
    struct Traits {
        std::uint64_t registryID = 0;
        bool isLowPower = false;
        bool isRemovable = false;
    };

    void add(ObjectMessages::Object device, std::vector<Device>& devices);
    RetainedReference createDefaultDevice() const;
    std::optional<std::uint64_t> evidentDefault() const;

    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    ObjectMessages messages_;
    bool canAsk_;
    std::vector<Traits> traits_;
};

}  // namespace vantor
