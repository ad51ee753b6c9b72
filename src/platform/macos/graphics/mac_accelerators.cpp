#include "platform/macos/graphics/mac_accelerators.h"

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

MacAccelerators::MacAccelerators(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      conversion_(frameworks_->coreFoundation),
      canLookUp_(frameworks_->ioKit.serviceMatching &&
                 frameworks_->ioKit.serviceGetMatchingServices && frameworks_->ioKit.iteratorNext &&
                 frameworks_->ioKit.objectRelease),
      canReadProperties_(conversion_.canMakeTexts() &&
                         frameworks_->ioKit.registryEntryCreateCFProperty) {}

std::optional<Accelerators::Object> MacAccelerators::matchingServices() {
    if (!canLookUp_) return std::nullopt;
    const IOKitTable& ioKit = frameworks_->ioKit;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const CFTypeRef matching = ioKit.serviceMatching("IOAccelerator");
    if (!matching) return std::nullopt;
    MachPort iterator = 0;
    // Takes the dictionary, also when it fails.
    if (ioKit.serviceGetMatchingServices(frameworks_->mainPort, matching, &iterator) != 0)
        return std::nullopt;
    return iterator;  // 0 where there is none, which is no failure
}

Accelerators::Object MacAccelerators::iteratorNext(Object iterator) {
    return canLookUp_ && iterator != 0 ? frameworks_->ioKit.iteratorNext(iterator) : 0;
}

const PropertyValue* MacAccelerators::property(Object service, std::string_view key) {
    answered_.reset();
    if (!canReadProperties_) return nullptr;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference name = conversion_.makeText(key);
    if (!name) return nullptr;
    const RetainedReference value = conversion_.own(
        frameworks_->ioKit.registryEntryCreateCFProperty(service, name.get(), nullptr, 0));
    answered_ = conversion_.value(value.get());
    return answered_ ? &*answered_ : nullptr;
}

std::optional<std::uint64_t> MacAccelerators::registryEntryID(Object service) {
    const auto getID = frameworks_->ioKit.registryEntryGetRegistryEntryID;
    std::uint64_t identifier = 0;
    if (!getID || getID(service, &identifier) != 0) return std::nullopt;
    return identifier;
}

void MacAccelerators::release(Object object) {
    if (canLookUp_ && object != 0) frameworks_->ioKit.objectRelease(object);
}

}  // namespace vantor
