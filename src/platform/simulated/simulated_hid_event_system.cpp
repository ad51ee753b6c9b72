#include "platform/simulated/simulated_hid_event_system.h"

namespace vantor {

void* SimulatedHIDEventSystem::openLibrary(const char*) {
    return nullptr;
}

void SimulatedHIDEventSystem::closeLibrary(void*) {}

HIDEventSystem::Function SimulatedHIDEventSystem::findFunction(void*, const char*) {
    return nullptr;
}

HIDEventSystem::Object SimulatedHIDEventSystem::createClient(const Functions&) {
    return 0;
}

void SimulatedHIDEventSystem::setMatching(const Functions&, Object, std::int32_t, std::int32_t) {}

bool SimulatedHIDEventSystem::copyServices(const Functions&, Object, std::vector<Object>&) {
    return false;
}

std::optional<std::string> SimulatedHIDEventSystem::copyProperty(const Functions&, Object,
                                                                 const char*) {
    return std::nullopt;
}

HIDEventSystem::Object SimulatedHIDEventSystem::copyEvent(const Functions&, Object, std::int64_t) {
    return 0;
}

double SimulatedHIDEventSystem::floatValue(const Functions&, Object, std::int32_t) {
    return 0;
}

void SimulatedHIDEventSystem::release(Object) {}

}  // namespace vantor
