#pragma once

#include "platform/hid_event_system.h"

namespace vantor {

/// By script.
class SimulatedHIDEventSystem : public HIDEventSystem {
  public:
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
};

}  // namespace vantor
