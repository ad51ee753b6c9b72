#pragma once

#include <utility>

#include "platform/graphics_devices.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Tells of nothing yet.
class LinuxGraphicsDevices : public GraphicsDevices {
  public:
    explicit LinuxGraphicsDevices(LinuxRoots roots) : roots_(std::move(roots)) {}

    void copyAllDevices(std::vector<Device>& devices) override;
    std::optional<std::uint64_t> systemDefaultDevice() override;

  private:
    [[maybe_unused]] LinuxRoots roots_;
};

}  // namespace vantor
