#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantor {

/// The temperature sensors of a Mac's event system. Its functions are found at run time, because no
/// public header has them; the caller that found them passes them to the calls. Any thread.
///
/// macOS: the functions of the I/O framework that the members are named after.
class HIDEventSystem {
  public:
    using Function = void*;         ///< null = not found
    using Object = std::uintptr_t;  ///< a client, service or event to be released; 0 = none

    struct Functions {
        Function clientCreate = nullptr;         ///< IOHIDEventSystemClientCreate
        Function clientSetMatching = nullptr;    ///< IOHIDEventSystemClientSetMatching
        Function clientCopyServices = nullptr;   ///< IOHIDEventSystemClientCopyServices
        Function serviceCopyProperty = nullptr;  ///< IOHIDServiceClientCopyProperty
        Function serviceCopyEvent = nullptr;     ///< IOHIDServiceClientCopyEvent
        Function eventGetFloatValue = nullptr;   ///< IOHIDEventGetFloatValue
    };

    virtual ~HIDEventSystem() = default;

    /// dlopen, lazily bound and with local symbols; null when it cannot be opened.
    virtual void* openLibrary(const char* path) = 0;
    virtual void closeLibrary(void* library) = 0;
    virtual Function findFunction(void* library, const char* name) = 0;

    virtual Object createClient(const Functions& functions) = 0;
    /// Limits the client to services with that primary usage page and usage.
    virtual void setMatching(const Functions& functions, Object client, std::int32_t usagePage,
                             std::int32_t usage) = 0;
    /// Adds the client's services, each to be released; false when there is no list.
    virtual bool copyServices(const Functions& functions, Object client,
                              std::vector<Object>& services) = 0;
    /// A property as text; absent when it is missing or no text.
    virtual std::optional<std::string> copyProperty(const Functions& functions, Object service,
                                                    const char* key) = 0;
    /// The service's present event of that type; 0 when it has none.
    virtual Object copyEvent(const Functions& functions, Object service, std::int64_t type) = 0;
    virtual double floatValue(const Functions& functions, Object event, std::int32_t field) = 0;
    virtual void release(Object object) = 0;
};

}  // namespace vantor
