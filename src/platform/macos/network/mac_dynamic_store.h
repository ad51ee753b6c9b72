#pragma once

#include <memory>
#include <optional>

#include "platform/darwin/dynamic_store.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"

namespace vantor {

/// SCDynamicStoreCopyValue without a store of our own: a session for each question, which a reader
/// asks every five seconds.
class MacDynamicStore : public DynamicStore {
  public:
    explicit MacDynamicStore(std::shared_ptr<const Frameworks> frameworks);

    const PropertyValue* copyValue(std::string_view key) override;

  private:
    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    bool canAsk_;
    std::optional<PropertyValue> answered_;  ///< what copyValue() refers to
};

}  // namespace vantor
