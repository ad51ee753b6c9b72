#include "platform/macos/network/mac_dynamic_store.h"

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

MacDynamicStore::MacDynamicStore(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      conversion_(frameworks_->coreFoundation),
      canAsk_(conversion_.canMakeTexts() &&
              frameworks_->systemConfiguration.dynamicStoreCopyValue) {}

const PropertyValue* MacDynamicStore::copyValue(std::string_view key) {
    answered_.reset();
    if (!canAsk_) return nullptr;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference name = conversion_.makeText(key);
    if (!name) return nullptr;
    const RetainedReference value = conversion_.own(
        frameworks_->systemConfiguration.dynamicStoreCopyValue(nullptr, name.get()));
    answered_ = conversion_.value(value.get());
    return answered_ ? &*answered_ : nullptr;
}

}  // namespace vantor
