#include <array>
#include <span>
#include <string_view>

#include "platform/macos/fake_darwin.h"

namespace vantor {

namespace {

using Kind = FakeObject::Kind;
using Ref = FakeObject::Ref;
using PortKind = FakeDarwin::Port::Kind;

constexpr KernelResult failed = -536870212;

/// Takes the dictionary over; the class that it matches.
std::string consume(CFTypeRef matching, MachPort mainPort) {
    const FakeCall call;
    if (mainPort != FakeDarwin::mainPort) call->objects.complain("a lookup on another port");
    const Ref dictionary = call->objects.check(matching, Kind::dictionary, "a lookup of services");
    const std::string name = dictionary ? dictionary->bytes : "";
    if (dictionary) call->objects.release(dictionary);
    return name;
}

void fillLookups(IOKitTable& table) {
    table.serviceMatching = [](const char* name) -> CFTypeRef {
        const FakeCall call;
        if (call->fails()) return nullptr;
        FakeObject& matching = call->objects.create(Kind::dictionary);
        matching.bytes = name;
        return &matching;
    };
    table.serviceGetMatchingService = [](MachPort mainPort, CFTypeRef matching) -> MachPort {
        const FakeCall call;
        if (consume(matching, mainPort) != "AppleSMC")
            call->objects.complain("another service than the controller");
        if (!call->controller || call->fails()) return 0;
        return call->openPort(PortKind::service);
    };
    table.serviceGetMatchingServices = [](MachPort mainPort, CFTypeRef matching,
                                          MachPort* iterator) {
        const FakeCall call;
        if (consume(matching, mainPort) != "IOAccelerator")
            call->objects.complain("other services than accelerators");
        if (call->lookupFails || call->fails()) return failed;
        // The system hands out no iterator over nothing.
        *iterator = call->accelerators.empty() ? 0 : call->openPort(PortKind::iterator);
        return 0;
    };
    table.iteratorNext = [](MachPort name) -> MachPort {
        const FakeCall call;
        auto* const iterator = call->port(name, PortKind::iterator, "IOIteratorNext");
        if (!iterator || iterator->index == call->accelerators.size() || call->fails()) return 0;
        return call->openPort(PortKind::service, iterator->index++);
    };
    table.objectRelease = [](MachPort name) {
        const FakeCall call;
        if (!call->closePort(name)) call->objects.complain("IOObjectRelease of no port");
        return 0;
    };
    table.registryEntryCreateCFProperty = [](MachPort entry, CFTypeRef key, CFTypeRef allocator,
                                             std::uint32_t options) -> CFTypeRef {
        const FakeCall call;
        constexpr auto function = "IORegistryEntryCreateCFProperty";
        if (allocator || options != 0) call->objects.complain("a property with options");
        const auto* const service = call->port(entry, PortKind::service, function);
        const Ref name = call->objects.check(key, Kind::text, function);
        if (!service || !name || call->fails()) return nullptr;
        const auto& properties = call->accelerators.at(service->index).properties;
        const auto found = properties.find(asciiOf(name));
        return found == properties.end() ? nullptr : call->objects.copyOut(found->second);
    };
    table.registryEntryGetRegistryEntryID = [](MachPort entry, std::uint64_t* identifier) {
        const FakeCall call;
        const auto* const service = call->port(entry, PortKind::service, "an identifier");
        if (!service || call->fails()) return failed;
        const auto& known = call->accelerators.at(service->index).registryEntryID;
        if (!known) return failed;
        *identifier = *known;
        return 0;
    };
}

void fillController(IOKitTable& table) {
    table.serviceOpen = [](MachPort service, MachPort task, std::uint32_t type,
                           MachPort* connection) {
        const FakeCall call;
        if (task != FakeDarwin::task || type != 0)
            call->objects.complain("IOServiceOpen for another task or of another type");
        if (!call->port(service, PortKind::service, "IOServiceOpen")) return failed;
        if (call->openFails || call->fails()) return failed;
        *connection = call->openPort(PortKind::connection);
        return 0;
    };
    table.serviceClose = [](MachPort connection) {
        const FakeCall call;
        if (call->port(connection, PortKind::connection, "IOServiceClose"))
            call->closePort(connection);
        return 0;
    };
    table.connectCallStructMethod = [](MachPort connection, std::uint32_t selector,
                                       const void* input, std::size_t inputSize, void* output,
                                       std::size_t* outputSize) {
        const FakeCall call;
        if (!call->port(connection, PortKind::connection, "IOConnectCallStructMethod"))
            return failed;
        if (selector != 2) call->objects.complain("another selector");
        if (call->fails()) return failed;
        const std::span response(static_cast<std::byte*>(output), *outputSize);
        return call->controller(std::span(static_cast<const std::byte*>(input), inputSize),
                                response, *outputSize);
    };
}

void fillPowerSources(IOKitTable& table) {
    table.copyPowerSourcesInfo = []() -> CFTypeRef {
        const FakeCall call;
        if (!call->hasPowerInfo || call->fails()) return nullptr;
        FakeObject& info = call->objects.create(Kind::powerInfo);
        for (const FakeDarwin::PowerSource& source : call->powerSources) {
            info.entries.emplace_back(call->objects.copyInto(&info, source.description), nullptr);
        }
        return &info;
    };
    table.copyPowerSourcesList = [](CFTypeRef object) -> CFTypeRef {
        const FakeCall call;
        const Ref info = call->objects.check(object, Kind::powerInfo, "IOPSCopyPowerSourcesList");
        if (!info || call->fails()) return nullptr;
        if (call->otherPowerList) return call->objects.copyOut(*call->otherPowerList);
        FakeObject& list = call->objects.create(Kind::array);
        for (std::size_t i = 0; i < call->powerSources.size(); ++i) {
            const bool isMissing = call->powerSources[i].isMissing;
            list.entries.emplace_back(
                isMissing ? nullptr : call->objects.createInto(&list, Kind::powerSource, i),
                nullptr);
        }
        return &list;
    };
    table.getPowerSourceDescription = [](CFTypeRef object, CFTypeRef member) -> CFTypeRef {
        const FakeCall call;
        constexpr auto function = "IOPSGetPowerSourceDescription";
        const Ref info = call->objects.check(object, Kind::powerInfo, function);
        const Ref source = call->objects.check(member, Kind::powerSource, function);
        if (!info || !source || call->fails()) return nullptr;
        return info->entries.at(source->next).first;
    };
}

}  // namespace

IOKitTable fakeIOKit() {
    IOKitTable table;
    fillLookups(table);
    fillController(table);
    fillPowerSources(table);
    return table;
}

}  // namespace vantor
