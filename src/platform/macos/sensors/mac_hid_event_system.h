#pragma once

#include <memory>

#include "platform/darwin/hid_event_system.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"

namespace vantor {

/// The I/O Kit framework's event system, through the functions that the caller found.
class MacHIDEventSystem : public HIDEventSystem {
  public:
    explicit MacHIDEventSystem(std::shared_ptr<const Frameworks> frameworks);

    void* openLibrary(const char* path) override;
    void closeLibrary(void* library) override;
    Function findFunction(void* library, const char* name) override;
    Object createClient(const Functions& functions) override;
    void setMatching(const Functions& functions, Object client, std::int32_t usagePage,
                     std::int32_t usage) override;
    bool copyServices(const Functions& functions, Object client,
                      std::vector<Object>& services) override;
    std::optional<std::string> copyProperty(const Functions& functions, Object service,
                                            const char* key) override;
    Object copyEvent(const Functions& functions, Object service, std::int64_t type) override;
    double floatValue(const Functions& functions, Object event, std::int32_t field) override;
    void release(Object object) override;

  private:
    RetainedReference makeNumber(std::int32_t number) const;
    /// Null when it could not be made.
    RetainedReference makeMatching(std::int32_t usagePage, std::int32_t usage) const;

    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    bool canCreate_;  ///< and so ask for anything: without a client there is nothing to ask
};

}  // namespace vantor
