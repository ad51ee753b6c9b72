#pragma once

#include <memory>

#include "platform/accelerators.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"

namespace vantor {

/// The services of the class IOAccelerator in the I/O registry.
class MacAccelerators : public Accelerators {
  public:
    explicit MacAccelerators(std::shared_ptr<const Frameworks> frameworks);

    std::optional<Object> matchingServices() override;
    Object iteratorNext(Object iterator) override;
    const PropertyValue* property(Object service, std::string_view key) override;
    std::optional<std::uint64_t> registryEntryID(Object service) override;
    void release(Object object) override;

  private:
    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    bool canLookUp_;
    bool canReadProperties_;
    std::optional<PropertyValue> answered_;  ///< what property() refers to
};

}  // namespace vantor
