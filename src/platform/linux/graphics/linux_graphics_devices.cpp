#include "platform/linux/graphics/linux_graphics_devices.h"

namespace vantor {

void LinuxGraphicsDevices::copyAllDevices(std::vector<Device>& devices) {
    devices.clear();
    if (!cards_->list()) return;
    for (const auto& card : cards_->cards()) {
        devices.push_back({card->place().registryID(), card->name(), card->hasUnifiedMemory(),
                           card->memorySize()});
    }
}

std::optional<std::uint64_t> LinuxGraphicsDevices::systemDefaultDevice() {
    const GraphicsCard* const card = cards_->defaultCard();
    if (!card) return std::nullopt;
    return card->place().registryID();
}

}  // namespace vantor
