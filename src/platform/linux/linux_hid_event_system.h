#pragma once

#include <utility>

#include "platform/hid_event_system.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Tells of nothing yet.
class LinuxHIDEventSystem : public HIDEventSystem {
  public:
    explicit LinuxHIDEventSystem(LinuxRoots roots) : roots_(std::move(roots)) {}

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
    [[maybe_unused]] LinuxRoots roots_;
};

}  // namespace vantor
