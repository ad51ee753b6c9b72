#include <array>
#include <cstring>
#include <vector>

#include "app/probe/call_lines.h"
#include "platform/interface_message.h"
#include "platform/smc_record.h"

namespace vantor {

namespace {

std::string primaryInterface(DynamicStore& store, std::string_view key) {
    const PropertyValue* const value = store.copyValue(key);
    const PropertyDictionary* const dictionary = value ? value->dictionary() : nullptr;
    const std::string* const name =
        dictionary ? findText(*dictionary, "PrimaryInterface") : nullptr;
    return name ? *name : "absent";
}

const char* nameOf(NetworkInterfaces::Family family) {
    constexpr std::array names{"no address", "link", "IPv4", "IPv6", "another family"};
    return names[static_cast<std::size_t>(family)];
}

void reportEntry(NetworkInterfaces& interfaces, const NetworkInterfaces::Entry& entry,
                 Report& report) {
    std::array<char, 1025> host{};
    std::string answer = nameOf(entry.family);
    if (interfaces.numericHost(entry, host)) answer += std::string(" ") + host.data();
    if (entry.linkData)
        answer += " in " + std::to_string(entry.linkData->received) + " out " +
                  std::to_string(entry.linkData->sent);
    answer += ", flags " + std::to_string(entry.flags);
    report.line(std::string("  ") + (entry.name ? entry.name : "(no name)"), answer);
}

/// One question that needs no sensor: how many keys there are.
std::string keyCountOf(SystemController& controller, SystemController::Connection connection) {
    SMCRecord request;
    SMCRecord response;
    request.setKey(fourCC("#KEY").value_or(0));
    request.setCommand(SMCRecord::Command::readKeyInfo);
    std::size_t size = 0;
    const int result =
        controller.callStructMethod(connection, 2, request.bytes(), response.bytes(), size);
    return "answers " + std::to_string(result) + ", " + std::to_string(size) + " bytes, result " +
           std::to_string(response.result()) + ", value of " + std::to_string(response.dataSize()) +
           " bytes";
}

std::string keysOf(const PropertyDictionary& dictionary) {
    std::string text;
    for (const PropertyEntry& entry : dictionary)
        text += (text.empty() ? "" : ", ") + entry.key;
    return text;
}

}  // namespace

void reportNetwork(Machine& machine, Report& report) {
    NetworkInterfaces& interfaces = machine.networkInterfaces();
    std::size_t size = 0;
    const int sizing = interfaces.sysctl(interface_message::path, {}, size);
    report.line("sysctl, size of the list",
                sizing == 0 ? std::to_string(size) + " bytes" : "error " + std::to_string(sizing));
    std::vector<std::byte> list(size);
    const int error = interfaces.sysctl(interface_message::path, list, size);
    report.line("sysctl, the list",
                error == 0 ? std::to_string(size) + " bytes" : "error " + std::to_string(error));
    std::array<char, 16> name{};
    report.line("indexToName 1", interfaces.indexToName(1, name) ? name.data() : "absent");
    const auto entries = interfaces.getifaddrs();
    report.line("getifaddrs", entries ? std::to_string(entries->size()) + " entries" : "absent");
    if (entries) {
        for (const auto& entry : *entries)
            reportEntry(interfaces, entry, report);
        interfaces.freeifaddrs();
    }
    for (const char* const key : {"State:/Network/Global/IPv4", "State:/Network/Global/IPv6"})
        report.line(std::string("copyValue ") + key, primaryInterface(machine.dynamicStore(), key));
}

void reportStorageAndPower(Machine& machine, Report& report) {
    MountedVolumes& mounted = machine.mountedVolumes();
    const auto volumes = mounted.mountedVolumes();
    report.line("mountedVolumes", volumes ? std::to_string(volumes->size()) : "absent");
    for (const auto& volume : volumes.value_or(std::vector<MountedVolumes::Volume>{})) {
        const auto kind = mounted.classification(volume);
        std::string answer =
            "local " + Report::text(kind.isLocal) + ", browsable " + Report::text(kind.isBrowsable);
        if (kind.isLocal.value_or(false) && kind.isBrowsable.value_or(false)) {
            const auto details = mounted.details(volume);
            answer += ", name " + Report::text(details.name) + ", bytes " +
                      Report::text(details.totalCapacity) + " free " +
                      Report::text(details.availableCapacity) + ", internal " +
                      Report::text(details.isInternal) + ", removable " +
                      Report::text(details.isRemovable) + ", read-only " +
                      Report::text(details.isReadOnly);
        }
        report.line("  " + volume.path, answer);
    }
    const auto power = machine.powerSources().copyInfo();
    const auto count = power ? power->count() : std::nullopt;
    report.line("power sources", count);
    for (std::size_t i = 0; i < count.value_or(0); ++i) {
        const auto* const description = power->hasSource(i) ? power->description(i) : nullptr;
        report.line("  source " + std::to_string(i + 1),
                    description ? keysOf(*description) : "absent");
    }
}

void reportGraphics(Machine& machine, Report& report) {
    std::vector<GraphicsDevices::Device> devices;
    machine.graphicsDevices().copyAllDevices(devices);
    report.line("copyAllDevices", devices.size());
    for (const auto& device : devices) {
        report.line("  " + std::to_string(device.registryID),
                    device.name + ", shares memory: " + Report::text(device.hasUnifiedMemory) +
                        ", working set " + std::to_string(device.recommendedMaxWorkingSetSize));
    }
    report.line("systemDefaultDevice", machine.graphicsDevices().systemDefaultDevice());
    Accelerators& accelerators = machine.accelerators();
    const auto services = accelerators.matchingServices();
    report.line("matchingServices", services ? "an iterator" : "absent");
    if (!services) return;
    while (const auto service = accelerators.iteratorNext(*services)) {
        const std::string id = Report::text(accelerators.registryEntryID(service));
        const PropertyValue* const model = accelerators.property(service, "model");
        const std::string* const name = model ? model->text() : nullptr;
        report.line("  service " + id, name ? *name : "no model as text");
        const PropertyValue* const figures =
            accelerators.property(service, "PerformanceStatistics");
        const PropertyDictionary* const all = figures ? figures->dictionary() : nullptr;
        report.line("  its figures", all ? keysOf(*all) : "absent");
        accelerators.release(service);
    }
    accelerators.release(*services);
}

void reportSensors(Machine& machine, Report& report) {
    SystemController& controller = machine.systemController();
    const auto service = controller.matchingService();
    report.line("matchingService", service != 0 ? "there" : "absent");
    if (service != 0) {
        const auto connection = controller.open(service);
        report.line("open", connection != 0 ? "opened" : "refused");
        if (connection != 0) {
            report.line("callStructMethod #KEY", keyCountOf(controller, connection));
            controller.close(connection);
        }
        controller.release(service);
    }
    HIDEventSystem& events = machine.hidEventSystem();
    void* const library = events.openLibrary("/System/Library/Frameworks/IOKit.framework/IOKit");
    report.line("openLibrary", library != nullptr);
    if (!library) return;
    for (const char* const name :
         {"IOHIDEventSystemClientCreate", "IOHIDEventSystemClientSetMatching",
          "IOHIDEventSystemClientCopyServices", "IOHIDServiceClientCopyProperty",
          "IOHIDServiceClientCopyEvent", "IOHIDEventGetFloatValue"})
        report.line(std::string("findFunction ") + name,
                    events.findFunction(library, name) != nullptr);
    events.closeLibrary(library);
}

}  // namespace vantor
