#pragma once

#include <memory>
#include <utility>

#include "platform/graphics_devices.h"
#include "platform/linux/graphics/graphics_cards.h"

namespace vantor {

/// The graphics cards, in the order of their nodes' numbers. The default one is what the firmware
/// shows its pictures on.
class LinuxGraphicsDevices : public GraphicsDevices {
  public:
    explicit LinuxGraphicsDevices(std::shared_ptr<GraphicsCards> cards)
        : cards_(std::move(cards)) {}

    void copyAllDevices(std::vector<Device>& devices) override;

    /// Of those that were copied last.
    std::optional<std::uint64_t> systemDefaultDevice() override;

  private:
    std::shared_ptr<GraphicsCards> cards_;
};

}  // namespace vantor
