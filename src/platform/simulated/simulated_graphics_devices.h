#pragma once

#include "platform/graphics_devices.h"

namespace vantor {

/// By script.
class SimulatedGraphicsDevices : public GraphicsDevices {
  public:
    void copyAllDevices(std::vector<Device>& devices) override;
    std::optional<std::uint64_t> systemDefaultDevice() override;
};

}  // namespace vantor
