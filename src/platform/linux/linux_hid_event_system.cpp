#include "platform/linux/linux_hid_event_system.h"

namespace vantor {

void* LinuxHIDEventSystem::openLibrary(const char*) {
    return nullptr;
}

void LinuxHIDEventSystem::closeLibrary(void*) {}

HIDEventSystem::Function LinuxHIDEventSystem::findFunction(void*, const char*) {
    return nullptr;
}

HIDEventSystem::Object LinuxHIDEventSystem::createClient(const Functions&) {
    return 0;
}

void LinuxHIDEventSystem::setMatching(const Functions&, Object, std::int32_t, std::int32_t) {}

bool LinuxHIDEventSystem::copyServices(const Functions&, Object, std::vector<Object>&) {
    return false;
}

std::optional<std::string> LinuxHIDEventSystem::copyProperty(const Functions&, Object,
                                                             const char*) {
    return std::nullopt;
}

HIDEventSystem::Object LinuxHIDEventSystem::copyEvent(const Functions&, Object, std::int64_t) {
    return 0;
}

double LinuxHIDEventSystem::floatValue(const Functions&, Object, std::int32_t) {
    return 0;
}

void LinuxHIDEventSystem::release(Object) {}

}  // namespace vantor
