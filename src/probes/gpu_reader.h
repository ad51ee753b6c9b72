#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "model/gpu_stats.h"
#include "platform/machine.h"
#include "probes/gpu_records.h"
#include "probes/gpu_statistics.h"
#include "probes/hardware_temperature_reader.h"

namespace vantor {

/// Lists the graphics devices with what the drivers' accelerator services publish about them. The
/// list of devices is refreshed every ten seconds, the services are asked at each call. One thread
/// at a time.
class GPUReader {
  public:
    explicit GPUReader(std::shared_ptr<Machine> machine);

    /// The devices in the system's order, the default one first; or the services, where the system
    /// lists no devices. Absent when there are no devices and the services could not be looked up.
    std::optional<std::vector<GPUStats>> read();

  private:
    /// Absent before it was asked for in this read.
    using HardwareTemperature = std::optional<std::optional<double>>;

    const std::vector<MetalDeviceMetadata>& metalDeviceMetadata();
    /// Null when the services could not be looked up; else the buffer, in order.
    const std::vector<RegistryStats>* readRegistryStats();
    RegistryStats registryStats(Accelerators& accelerators, Accelerators::Object service);

    std::vector<GPUStats> rowsOfServices(const std::vector<RegistryStats>& registry);
    std::vector<GPUStats> rowsOfDevices(const std::vector<MetalDeviceMetadata>& devices,
                                        const std::vector<RegistryStats>& registry);
    std::optional<double> hardwareTemperature(HardwareTemperature& known) const;

    std::shared_ptr<Machine> machine_;
    HardwareTemperatureReader temperatures_;
    std::vector<MetalDeviceMetadata> cachedMetalDevices_;
    std::optional<double> lastMetalMetadataRefreshUptime_;  ///< absent before the first
    // Working storage without meaning between two reads.
    std::vector<RegistryStats> registryStatsBuffer_;
    FlattenedStatistics flattenedValueBuffer_;
    std::vector<std::size_t> matchedRegistryIndexBuffer_;
};

}  // namespace vantor
