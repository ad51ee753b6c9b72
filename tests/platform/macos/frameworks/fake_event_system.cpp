#include <array>
#include <string_view>
#include <utility>

#include "platform/macos/fake_darwin.h"

namespace vantor {

namespace {

using Kind = FakeObject::Kind;
using Ref = FakeObject::Ref;

constexpr std::string_view theLibrary = "/System/Library/Frameworks/IOKit.framework/IOKit";
char library = 0;

CFTypeRef createClient(CFTypeRef allocator) {
    const FakeCall call;
    if (allocator) call->objects.complain("a client of another allocator");
    return call->fails() ? nullptr : &call->objects.create(Kind::client);
}

void setMatching(CFTypeRef object, CFTypeRef matching) {
    const FakeCall call;
    constexpr auto function = "IOHIDEventSystemClientSetMatching";
    const Ref client = call->objects.check(object, Kind::client, function);
    const Ref dictionary = call->objects.check(matching, Kind::dictionary, function);
    if (!client || !dictionary) return;
    std::map<std::string, std::int64_t> numbers;
    for (const auto& [key, value] : dictionary->entries) {
        if (call->objects.check(key, Kind::text, function) &&
            call->objects.check(value, Kind::number, function)) {
            numbers[asciiOf(key)] = std::get<std::int64_t>(value->number);
        }
    }
    if (numbers == decltype(numbers){{"PrimaryUsagePage", 65280}, {"PrimaryUsage", 5}})
        call->matchedClients.insert(client);
}

CFTypeRef copyServices(CFTypeRef object) {
    const FakeCall call;
    const Ref client = call->objects.check(object, Kind::client, "services of a client");
    if (!client || call->fails()) return nullptr;
    if (call->matchedClients.erase(client) > 0) ++call->sensorListsMatched;
    if (call->otherSensorList) return call->objects.copyOut(*call->otherSensorList);
    FakeObject& list = call->objects.create(Kind::array);
    for (std::size_t i = 0; i < call->sensors.size(); ++i)
        list.entries.emplace_back(call->objects.createInto(&list, Kind::service, i), nullptr);
    return &list;
}

CFTypeRef copyProperty(CFTypeRef object, CFTypeRef key) {
    const FakeCall call;
    constexpr auto function = "IOHIDServiceClientCopyProperty";
    const Ref service = call->objects.check(object, Kind::service, function);
    const Ref name = call->objects.check(key, Kind::text, function);
    if (!service || !name || call->fails() || asciiOf(name) != "Product") return nullptr;
    return call->objects.copyOut(call->sensors.at(service->next).product);
}

CFTypeRef copyEvent(CFTypeRef object, std::int64_t type, std::int32_t options,
                    std::int64_t timestamp) {
    const FakeCall call;
    const Ref service = call->objects.check(object, Kind::service, "IOHIDServiceClientCopyEvent");
    if (type != 15 || options != 0 || timestamp != 0) call->objects.complain("another event");
    if (!service || call->fails()) return nullptr;
    if (!call->sensors.at(service->next).value) return nullptr;
    const FakeObject& event = call->objects.create(Kind::event);
    event.next = service->next;
    return &event;
}

double getFloatValue(CFTypeRef object, std::int32_t field) {
    const FakeCall call;
    const Ref event = call->objects.check(object, Kind::event, "IOHIDEventGetFloatValue");
    if (field != 0xF0000) call->objects.complain("another field");
    return event ? call->sensors.at(event->next).value.value_or(-1) : -1;
}

template <class Function>
void* addressOf(Function* function) {
    return reinterpret_cast<void*>(function);
}

const std::array<std::pair<std::string_view, void*>, 6> functions{{
    {"IOHIDEventSystemClientCreate", addressOf(createClient)},
    {"IOHIDEventSystemClientSetMatching", addressOf(setMatching)},
    {"IOHIDEventSystemClientCopyServices", addressOf(copyServices)},
    {"IOHIDServiceClientCopyProperty", addressOf(copyProperty)},
    {"IOHIDServiceClientCopyEvent", addressOf(copyEvent)},
    {"IOHIDEventGetFloatValue", addressOf(getFloatValue)},
}};

}  // namespace

LibraryLoader fakeLoader() {
    return {[](const char* path) -> void* { return path == theLibrary ? &library : nullptr; },
            [](void* handle) {
                if (handle != &library) FakeCall()->objects.complain("another library is closed");
            },
            [](void* handle, const char* symbol) -> void* {
                const FakeCall call;
                if (handle != &library) call->objects.complain("a symbol of another library");
                if (call->missingFunctions.contains(symbol)) return nullptr;
                for (const auto& [name, address] : functions) {
                    if (name == symbol) return address;
                }
                return nullptr;
            }};
}

}  // namespace vantor
