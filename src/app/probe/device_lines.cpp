#include <string>
#include <vector>

#include "app/probe/call_lines.h"

namespace vantor {

namespace {

std::string answerOf(const NetworkInterfaces::Record& record) {
    std::string answer = "number " + std::to_string(record.index);
    if (record.isUp) answer += ", up";
    if (record.isRunning) answer += ", running";
    if (record.isLoopback) answer += ", loopback";
    if (record.isPointToPoint) answer += ", point to point";
    if (record.counters)
        answer += ", in " + std::to_string(record.counters->received) + " out " +
                  std::to_string(record.counters->sent);
    if (record.shortCounters)
        answer += ", in 32 bits in " + std::to_string(record.shortCounters->received) + " out " +
                  std::to_string(record.shortCounters->sent);
    for (const NetworkInterfaces::Address& address : record.addresses)
        answer += ", " + address.text;
    return answer;
}

std::string keysOf(const PropertyDictionary& dictionary) {
    std::string text;
    for (const PropertyEntry& entry : dictionary)
        text += (text.empty() ? "" : ", ") + entry.key;
    return text;
}

}  // namespace

void reportNetwork(Machine& machine, Report& report) {
    NetworkInterfaces::List interfaces;
    const bool areThere = machine.networkInterfaces().read(interfaces);
    report.line("interfaces", areThere ? std::to_string(interfaces.size()) : "absent");
    if (areThere) {
        for (const NetworkInterfaces::Record& record : interfaces)
            report.line("  " + record.name, answerOf(record));
    }
    const auto primary = machine.primaryInterface().name();
    report.line("primary interface", primary ? std::string(*primary) : "absent");
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
    for (const auto& [name, read] : sensorCalls)
        report.line(name, (machine.sensors().*read)());
}

}  // namespace vantor
