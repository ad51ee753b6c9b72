#include "platform/macos/graphics/mac_graphics_devices.h"

#include <algorithm>
#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

MacGraphicsDevices::MacGraphicsDevices(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      conversion_(frameworks_->coreFoundation),
      messages_(frameworks_->objectiveC),
      canAsk_(conversion_.isUsable() && messages_.isUsable() && frameworks_->objectiveC.release) {}

void MacGraphicsDevices::copyAllDevices(std::vector<Device>& devices) {
    devices.clear();
    traits_.clear();
    if (!canAsk_) return;
    const AutoreleasePool pool(frameworks_->objectiveC);
    if (!frameworks_->metal.copyAllDevices) {
        if (const RetainedReference device = createDefaultDevice()) add(device.get(), devices);
        return;
    }
    const RetainedReference list(frameworks_->metal.copyAllDevices(),
                                 frameworks_->objectiveC.release);
    // Arrays and texts of the two frameworks stand in for each other.
    const std::size_t count = conversion_.arrayCount(list.get()).value_or(0);
    for (std::size_t i = 0; i < count; ++i)
        add(conversion_.arrayEntry(list.get(), i), devices);
}

void MacGraphicsDevices::add(ObjectMessages::Object device, std::vector<Device>& devices) {
    const auto registryID = messages_.unsignedInteger(device, "registryID");
    if (!registryID) return;
    Device& copied = devices.emplace_back();
    copied.registryID = *registryID;
    conversion_.copyText(messages_.object(device, "name"), copied.name);
    copied.hasUnifiedMemory = messages_.truth(device, "hasUnifiedMemory").value_or(false);
    copied.recommendedMaxWorkingSetSize =
        messages_.unsignedInteger(device, "recommendedMaxWorkingSetSize").value_or(0);
    traits_.push_back({*registryID, messages_.truth(device, "isLowPower").value_or(false),
                       messages_.truth(device, "isRemovable").value_or(false)});
}

RetainedReference MacGraphicsDevices::createDefaultDevice() const {
    if (!frameworks_->metal.createSystemDefaultDevice) return {};
    return {frameworks_->metal.createSystemDefaultDevice(), frameworks_->objectiveC.release};
}

std::optional<std::uint64_t> MacGraphicsDevices::systemDefaultDevice() {
    if (!canAsk_) return std::nullopt;
    if (const auto evident = evidentDefault()) return evident;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference device = createDefaultDevice();
    return messages_.unsignedInteger(device.get(), "registryID");
}

std::optional<std::uint64_t> MacGraphicsDevices::evidentDefault() const {
    if (traits_.size() == 1) return traits_.front().registryID;
    const auto isLowPower = [](const Traits& traits) { return traits.isLowPower; };
    if (std::none_of(traits_.begin(), traits_.end(), isLowPower)) return std::nullopt;
    // Where there are two to change between, it is the one that is not there to save power.
    const auto isFastOne = [](const Traits& t) { return !t.isLowPower && !t.isRemovable; };
    const auto found = std::find_if(traits_.begin(), traits_.end(), isFastOne);
    if (found == traits_.end() || std::any_of(std::next(found), traits_.end(), isFastOne)) {
        return std::nullopt;
    }
    return found->registryID;
}

}  // namespace vantor
