#include "probes/gpu_reader.h"

#include <algorithm>
#include <string>
#include <utility>

#include "model/utf8.h"
#include "probes/gpu_matching.h"
#include "probes/gpu_names.h"

namespace vantor {

namespace {

constexpr double secondsBetweenDeviceLists = 10.0;

/// An iterator or a service of the registry, given back when this goes.
class RegistryObject {
  public:
    RegistryObject(Accelerators& accelerators, Accelerators::Object object)
        : accelerators_(accelerators), object_(object) {}
    RegistryObject(const RegistryObject&) = delete;
    RegistryObject& operator=(const RegistryObject&) = delete;
    ~RegistryObject() {
        if (object_ != 0) accelerators_.release(object_);
    }

    explicit operator bool() const { return object_ != 0; }
    Accelerators::Object get() const { return object_; }

  private:
    Accelerators& accelerators_;
    Accelerators::Object object_;
};

MetalDeviceMetadata metadataOf(const GraphicsDevices::Device& device) {
    MetalDeviceMetadata metadata;
    metadata.id = std::to_string(device.registryID);
    metadata.registryEntryID = device.registryID;
    metadata.name = repairedUTF8(device.name);
    metadata.normalizedName = normalizedGPUName(device.name);
    metadata.isUnifiedMemory = device.hasUnifiedMemory;
    if (device.recommendedMaxWorkingSetSize > 0)
        metadata.recommendedWorkingSetBytes = device.recommendedMaxWorkingSetSize;
    return metadata;
}

/// Moves the system's default device to the front; the others keep their order.
void putDefaultFirst(std::vector<GraphicsDevices::Device>& devices,
                     std::optional<std::uint64_t> defaultID) {
    if (!defaultID) return;
    const auto place = std::find_if(devices.begin(), devices.end(),
                                    [&](const auto& d) { return d.registryID == *defaultID; });
    if (place != devices.end()) std::rotate(devices.begin(), place, std::next(place));
}

/// What a service published, but for its temperature.
void setFigures(const RegistryStats& entry, GPUStats& row) {
    row.utilization = entry.utilization;
    row.vramUsedBytes = entry.vramUsed;
    row.vramTotalBytes = entry.vramTotal;
}

}  // namespace

GPUReader::GPUReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)), temperatures_(machine_) {}

std::optional<std::vector<GPUStats>> GPUReader::read() {
    const std::vector<MetalDeviceMetadata>& devices = metalDeviceMetadata();
    const std::vector<RegistryStats>* const registry = readRegistryStats();
    if (devices.empty()) {
        return registry ? std::optional(rowsOfServices(*registry)) : std::nullopt;
    }
    // Empty when the services could not be looked up.
    return rowsOfDevices(devices, registryStatsBuffer_);
}

const std::vector<MetalDeviceMetadata>& GPUReader::metalDeviceMetadata() {
    const double uptime = machine_->processInfo().systemUptime();
    if (lastMetalMetadataRefreshUptime_ &&
        uptime - *lastMetalMetadataRefreshUptime_ < secondsBetweenDeviceLists) {
        return cachedMetalDevices_;
    }
    std::vector<GraphicsDevices::Device> devices;
    machine_->graphicsDevices().copyAllDevices(devices);
    putDefaultFirst(devices, machine_->graphicsDevices().systemDefaultDevice());
    cachedMetalDevices_.clear();
    for (const GraphicsDevices::Device& device : devices)
        cachedMetalDevices_.push_back(metadataOf(device));
    lastMetalMetadataRefreshUptime_ = uptime;
    return cachedMetalDevices_;
}

const std::vector<RegistryStats>* GPUReader::readRegistryStats() {
    registryStatsBuffer_.clear();
    Accelerators& accelerators = machine_->accelerators();
    const auto services = accelerators.matchingServices();
    if (!services) return nullptr;
    {
        const RegistryObject iterator(accelerators, *services);
        while (const auto service =
                   RegistryObject(accelerators, accelerators.iteratorNext(iterator.get()))) {
            registryStatsBuffer_.push_back(registryStats(accelerators, service.get()));
        }
    }
    sortRegistryStats(registryStatsBuffer_);
    return &registryStatsBuffer_;
}

RegistryStats GPUReader::registryStats(Accelerators& accelerators, Accelerators::Object service) {
    flattenedValueBuffer_.clear();
    const PropertyValue* const statistics = accelerators.property(service, "PerformanceStatistics");
    if (const auto* const dictionary = statistics ? statistics->dictionary() : nullptr) {
        std::string prefix;
        appendNumericValues(*dictionary, prefix, 0, flattenedValueBuffer_);
    }
    RegistryStats stats;
    stats.name = deviceName(accelerators.property(service, "model"));
    stats.registryEntryID = accelerators.registryEntryID(service);
    stats.utilization = utilizationValue(flattenedValueBuffer_);
    stats.temperature = temperatureValue(flattenedValueBuffer_);
    stats.vramUsed = usedVRAMValue(flattenedValueBuffer_);
    stats.vramTotal = totalVRAMValue(flattenedValueBuffer_);
    if (stats.name) stats.normalizedName = normalizedGPUName(*stats.name);
    return stats;
}

std::vector<GPUStats> GPUReader::rowsOfServices(const std::vector<RegistryStats>& registry) {
    HardwareTemperature hardware;
    std::vector<GPUStats> rows;
    rows.reserve(registry.size());
    for (std::size_t i = 0; i < registry.size(); ++i) {
        const RegistryStats& entry = registry[i];
        GPUStats& row = rows.emplace_back();
        row.id = entry.registryEntryID ? "registry-" + std::to_string(*entry.registryEntryID)
                                       : "registry-fallback-" + std::to_string(i);
        row.name = entry.name.value_or("Graphics Device");
        setFigures(entry, row);
        row.temperatureCelsius = entry.temperature;
        // Of several services it is not known whose temperature the machine's own would be.
        if (!row.temperatureCelsius && registry.size() == 1)
            row.temperatureCelsius = hardwareTemperature(hardware);
    }
    return rows;
}

std::vector<GPUStats> GPUReader::rowsOfDevices(const std::vector<MetalDeviceMetadata>& devices,
                                               const std::vector<RegistryStats>& registry) {
    HardwareTemperature hardware;
    matchedRegistryIndexBuffer_.clear();
    matchedRegistryIndexBuffer_.reserve(std::min(devices.size(), registry.size()));
    std::vector<GPUStats> rows;
    rows.reserve(devices.size());
    for (std::size_t i = 0; i < devices.size(); ++i) {
        const MetalDeviceMetadata& device = devices[i];
        GPUStats& row = rows.emplace_back();
        row.id = device.id;
        row.name = device.name;
        row.isUnifiedMemory = device.isUnifiedMemory;
        row.recommendedWorkingSetBytes = device.recommendedWorkingSetBytes;
        const auto match =
            matchingRegistryStatsIndex(device, i, registry, devices, matchedRegistryIndexBuffer_);
        if (match) {
            matchedRegistryIndexBuffer_.push_back(*match);
            setFigures(registry[*match], row);
            row.temperatureCelsius = registry[*match].temperature;
        }
        if (!row.temperatureCelsius && device.isUnifiedMemory)
            row.temperatureCelsius = hardwareTemperature(hardware);
    }
    return rows;
}

std::optional<double> GPUReader::hardwareTemperature(HardwareTemperature& known) const {
    if (!known) known = temperatures_.gpuTemperature();
    return *known;
}

}  // namespace vantor
