#include "platform/simulated/simulated_hid_event_system.h"

#include <array>
#include <string_view>

namespace vantor {

namespace {

constexpr std::string_view expectedPath = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr std::array<std::string_view, 6> functionNames{
    "IOHIDEventSystemClientCreate",       "IOHIDEventSystemClientSetMatching",
    "IOHIDEventSystemClientCopyServices", "IOHIDServiceClientCopyProperty",
    "IOHIDServiceClientCopyEvent",        "IOHIDEventGetFloatValue"};

/// An object is its place among the services, and above it what kind of object it is.
enum Kind : unsigned { client = 1, service = 2, event = 3 };
constexpr unsigned kindShift = 20;

HIDEventSystem::Object objectOf(Kind kind, std::size_t index = 0) {
    return static_cast<HIDEventSystem::Object>(kind) << kindShift | index;
}

/// Functions and the library are addresses that nobody can call.
void* addressOf(std::size_t number) {
    return reinterpret_cast<void*>(number + 1);  // NOLINT(performance-no-int-to-ptr)
}

void* functionNamed(std::string_view name) {
    for (std::size_t i = 0; i < functionNames.size(); ++i) {
        if (functionNames[i] == name) return addressOf(i);
    }
    return nullptr;
}

void* library() {
    return addressOf(functionNames.size());
}

}  // namespace

void SimulatedHIDEventSystem::tell() const {
    if (onCall) onCall();
}

bool SimulatedHIDEventSystem::expect(bool isProper) {
    if (!isProper) ++improperCalls_;
    return isProper;
}

const SimulatedHIDEventSystem::Service* SimulatedHIDEventSystem::serviceOf(Object object,
                                                                           unsigned kind) {
    const std::size_t index = object & ((Object{1} << kindShift) - 1);
    const bool isOne = object >> kindShift == kind && index < services.size();
    return expect(isOne) ? &services[index] : nullptr;
}

void* SimulatedHIDEventSystem::openLibrary(const char* path) {
    tell();
    ++librariesOpened_;
    if (!expect(path == expectedPath) || !hasLibrary) return nullptr;
    ++librariesOutstanding_;
    return library();
}

void SimulatedHIDEventSystem::closeLibrary(void* handle) {
    tell();
    expect(handle == library());
    --librariesOutstanding_;
}

HIDEventSystem::Function SimulatedHIDEventSystem::findFunction(void* handle, const char* name) {
    tell();
    ++functionsSought_;
    void* const function = functionNamed(name);
    if (!expect(handle == library() && function)) return nullptr;
    return missingFunctions.contains(name) ? nullptr : function;
}

HIDEventSystem::Object SimulatedHIDEventSystem::createClient(const Functions& functions) {
    tell();
    expect(functions.clientCreate == addressOf(0));
    if (clientFails) return 0;
    ++clientsOutstanding_;
    return objectOf(client, static_cast<std::size_t>(clientsCreated_++));
}

void SimulatedHIDEventSystem::setMatching(const Functions& functions, Object object,
                                          std::int32_t usagePage, std::int32_t usage) {
    tell();
    expect(functions.clientSetMatching == addressOf(1) && object >> kindShift == client &&
           usagePage == 65280 && usage == 5);
    matchedClient_ = object;
}

bool SimulatedHIDEventSystem::copyServices(const Functions& functions, Object object,
                                           std::vector<Object>& objects) {
    tell();
    ++enumerations_;
    expect(functions.clientCopyServices == addressOf(2) && object == matchedClient_);
    if (listFails) return false;
    for (std::size_t i = 0; i < services.size(); ++i) {
        objects.push_back(objectOf(service, i));
        ++servicesOutstanding_;
    }
    return true;
}

std::optional<std::string> SimulatedHIDEventSystem::copyProperty(const Functions& functions,
                                                                 Object object, const char* key) {
    tell();
    expect(functions.serviceCopyProperty == addressOf(3) && std::string_view(key) == "Product");
    const Service* const found = serviceOf(object, service);
    return found ? found->product : std::nullopt;
}

HIDEventSystem::Object SimulatedHIDEventSystem::copyEvent(const Functions& functions, Object object,
                                                          std::int64_t type) {
    tell();
    expect(functions.serviceCopyEvent == addressOf(4) && type == 15);
    const Service* const found = serviceOf(object, service);
    if (!found || !found->value) return 0;
    ++eventsOutstanding_;
    return objectOf(event, static_cast<std::size_t>(found - services.data()));
}

double SimulatedHIDEventSystem::floatValue(const Functions& functions, Object object,
                                           std::int32_t field) {
    tell();
    expect(functions.eventGetFloatValue == addressOf(5) && field == 0xF0000);
    const Service* const found = serviceOf(object, event);
    return found ? found->value.value_or(0) : 0;
}

void SimulatedHIDEventSystem::release(Object object) {
    tell();
    switch (object >> kindShift) {
        case client:
            --clientsOutstanding_;
            break;
        case service:
            --servicesOutstanding_;
            break;
        case event:
            --eventsOutstanding_;
            break;
        default:
            expect(false);
    }
}

}  // namespace vantor
