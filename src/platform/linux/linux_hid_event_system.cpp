#include "platform/linux/linux_hid_event_system.h"

#include <string_view>

namespace vantor {

namespace {

constexpr std::int32_t hidEventSystemSensorUsagePage = 0xFF00;
constexpr std::int32_t hidEventSystemTemperatureUsage = 5;
constexpr std::int64_t hidEventSystemTemperatureEvent = 15;
constexpr std::int32_t hidEventSystemTemperatureField = 15 << 16;

}  // namespace

void* LinuxHIDEventSystem::openLibrary(const char*) {
    return this;
}

HIDEventSystem::Function LinuxHIDEventSystem::findFunction(void* library, const char*) {
    return library;
}

HIDEventSystem::Object LinuxHIDEventSystem::add(Entry entry) {
    const std::lock_guard guard(lock_);
    objects_.emplace(++lastObject_, std::move(entry));
    return lastObject_;
}

std::optional<LinuxHIDEventSystem::Entry> LinuxHIDEventSystem::find(Object object) {
    const std::lock_guard guard(lock_);
    const auto found = objects_.find(object);
    return found == objects_.end() ? std::nullopt : std::optional(found->second);
}

HIDEventSystem::Object LinuxHIDEventSystem::createClient(const Functions&) {
    return add({});
}

void LinuxHIDEventSystem::setMatching(const Functions&, Object client, std::int32_t usagePage,
                                      std::int32_t usage) {
    const std::lock_guard guard(lock_);
    const auto found = objects_.find(client);
    if (found == objects_.end()) return;
    found->second.matches =
        usagePage == hidEventSystemSensorUsagePage && usage == hidEventSystemTemperatureUsage;
}

bool LinuxHIDEventSystem::copyServices(const Functions&, Object client,
                                       std::vector<Object>& services) {
    const auto entry = find(client);
    if (!entry || !entry->matches) return false;
    const ProcessorSensors::List list = sensors_->list();
    for (const ProcessorSensor& sensor : list->sensors)
        services.push_back(add({true, list, &sensor, std::nullopt}));
    return true;
}

std::optional<std::string> LinuxHIDEventSystem::copyProperty(const Functions&, Object service,
                                                             const char* key) {
    const auto entry = find(service);
    if (!entry || !entry->sensor || std::string_view(key) != "Product") return std::nullopt;
    return entry->sensor->name();
}

HIDEventSystem::Object LinuxHIDEventSystem::copyEvent(const Functions&, Object service,
                                                      std::int64_t type) {
    const auto entry = find(service);
    if (!entry || !entry->sensor || type != hidEventSystemTemperatureEvent) return 0;
    const auto value = entry->sensor->read();
    return value ? add({true, nullptr, nullptr, value}) : 0;
}

double LinuxHIDEventSystem::floatValue(const Functions&, Object event, std::int32_t field) {
    const auto entry = find(event);
    return entry && field == hidEventSystemTemperatureField ? entry->value.value_or(0) : 0;
}

void LinuxHIDEventSystem::release(Object object) {
    Entry released;  // the sensors' files are closed after the lock is given back
    const std::lock_guard guard(lock_);
    const auto found = objects_.find(object);
    if (found == objects_.end()) return;
    released = std::move(found->second);
    objects_.erase(found);
}

}  // namespace vantor
