#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/accelerators.h"
#include "platform/linux/graphics/graphics_cards.h"

namespace vantor {

/// A service for each graphics card, in the order of their nodes' numbers. Its statistics are
/// "Device Utilization %" (0 to 100), "Temperature(C)", "VRAM Used" and "VRAM Total" (bytes); what
/// is not known is not in them. Asking for the services is what reads the figures of all.
class LinuxAccelerators : public Accelerators {
  public:
    explicit LinuxAccelerators(std::shared_ptr<GraphicsCards> cards) : cards_(std::move(cards)) {}

    std::optional<Object> matchingServices() override;
    Object iteratorNext(Object iterator) override;
    const PropertyValue* property(Object service, std::string_view key) override;
    std::optional<std::uint64_t> registryEntryID(Object service) override;
    void release(Object) override {}

  private:
    const GraphicsCard* find(Object service) const;

    std::shared_ptr<GraphicsCards> cards_;
    std::size_t next_ = 0;
    std::optional<PropertyValue> property_;
};

}  // namespace vantor
