#pragma once

#include <atomic>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/darwin/hid_event_system.h"

namespace vantor {

/// Temperature sensors by script. Set the members before the calls that are to see them; the calls
/// may come from several threads at once.
class SimulatedHIDEventSystem : public HIDEventSystem {
  public:
    struct Service {
        std::optional<std::string> product;
        std::optional<double> value;  ///< absent: it has no event
    };

    std::vector<Service> services;
    bool hasLibrary = true;
    std::set<std::string> missingFunctions;
    bool clientFails = false;
    bool listFails = false;

    /// Runs within every call to the event system, on its caller's thread, with nothing locked.
    std::function<void()> onCall;

    int librariesOpened() const { return librariesOpened_; }
    int functionsSought() const { return functionsSought_; }
    int enumerations() const { return enumerations_; }
    int librariesOutstanding() const { return librariesOutstanding_; }
    int clientsOutstanding() const { return clientsOutstanding_; }
    int servicesOutstanding() const { return servicesOutstanding_; }
    int eventsOutstanding() const { return eventsOutstanding_; }
    /// Calls with another function, object, property, event type or field than they should have.
    int improperCalls() const { return improperCalls_; }

    void* openLibrary(const char* path) override;
    void closeLibrary(void* library) override;
    Function findFunction(void* library, const char* name) override;
    Object createClient(const Functions& functions) override;
    void setMatching(const Functions& functions, Object client, std::int32_t usagePage,
                     std::int32_t usage) override;
    bool copyServices(const Functions& functions, Object client,
                      std::vector<Object>& objects) override;
    std::optional<std::string> copyProperty(const Functions& functions, Object service,
                                            const char* key) override;
    Object copyEvent(const Functions& functions, Object service, std::int64_t type) override;
    double floatValue(const Functions& functions, Object event, std::int32_t field) override;
    void release(Object object) override;

  private:
    void tell() const;
    /// Counts a call that is not as it should be.
    bool expect(bool isProper);
    const Service* serviceOf(Object object, unsigned kind);

    std::atomic<int> librariesOpened_{0};
    std::atomic<int> functionsSought_{0};
    std::atomic<int> enumerations_{0};
    std::atomic<int> librariesOutstanding_{0};
    std::atomic<int> clientsOutstanding_{0};
    std::atomic<int> servicesOutstanding_{0};
    std::atomic<int> eventsOutstanding_{0};
    std::atomic<int> improperCalls_{0};
    std::atomic<int> clientsCreated_{0};
    std::atomic<Object> matchedClient_{0};
};

}  // namespace vantor
