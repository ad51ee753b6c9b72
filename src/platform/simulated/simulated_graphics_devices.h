#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/graphics_devices.h"

namespace vantor {

/// Graphics devices by script. Set the members before the call that is to see them; nothing locks.
class SimulatedGraphicsDevices : public GraphicsDevices {
  public:
    std::vector<Device> devices;
    std::optional<std::uint64_t> defaultDevice;

    /// Runs at the start of copyAllDevices; may block for ever.
    std::function<void()> onCopyAllDevices;

    int copies = 0;  ///< of the list

    void copyAllDevices(std::vector<Device>& list) override;
    std::optional<std::uint64_t> systemDefaultDevice() override { return defaultDevice; }
};

}  // namespace vantor
