#pragma once

#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "platform/hid_event_system.h"
#include "platform/linux/processor_sensors.h"

namespace vantor {

/// Lists the processors' sensors under the names that driver and label give them, for machines
/// whose processor is one of Apple's. There is no library to be opened: every function is found.
class LinuxHIDEventSystem : public HIDEventSystem {
  public:
    explicit LinuxHIDEventSystem(std::shared_ptr<ProcessorSensors> sensors)
        : sensors_(std::move(sensors)) {}

    void* openLibrary(const char* path) override;
    void closeLibrary(void*) override {}
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
    /// A client, a service (with a sensor) or an event (with a value).
    struct Entry {
        bool matches = true;
        ProcessorSensors::List list;  // keeps the sensor
        const ProcessorSensor* sensor = nullptr;
        std::optional<double> value;
    };

    Object add(Entry entry);
    std::optional<Entry> find(Object object);

    std::shared_ptr<ProcessorSensors> sensors_;
    std::mutex lock_;
    std::unordered_map<Object, Entry> objects_;
    Object lastObject_ = 0;
};

}  // namespace vantor
