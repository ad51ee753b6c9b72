#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// Records that differ in the one field a test is about.
namespace vantor {

inline CPUStats cpuReading(double totalUsage) {
    CPUStats stats;
    stats.model = "Test Processor";
    stats.totalUsage = totalUsage;
    return stats;
}

inline MemoryStats memoryReading(std::uint64_t usedBytes, std::uint64_t totalBytes) {
    MemoryStats stats;
    stats.usedBytes = usedBytes;
    stats.totalBytes = totalBytes;
    return stats;
}

inline NetworkStats networkReading(double download, double upload) {
    NetworkStats stats;
    stats.hostname = "host.local";
    stats.downloadBytesPerSecond = download;
    stats.uploadBytesPerSecond = upload;
    return stats;
}

inline SystemInfoStats systemInfo(const std::string& hostName) {
    SystemInfoStats stats;
    stats.hostName = hostName;
    return stats;
}

inline GPUStats gpuDevice(const std::string& id, std::optional<double> utilization) {
    GPUStats stats;
    stats.id = id;
    stats.utilization = utilization;
    return stats;
}

inline VolumeStats volume(const std::string& path) {
    VolumeStats stats;
    stats.path = path;
    return stats;
}

inline PowerStats battery(double chargeFraction) {
    PowerStats stats;
    stats.name = "Battery";
    stats.chargeFraction = chargeFraction;
    return stats;
}

inline ProcessStats process(std::int32_t pid) {
    ProcessStats stats;
    stats.pid = pid;
    return stats;
}

inline std::vector<ProcessStats> processList(std::initializer_list<std::int32_t> pids) {
    std::vector<ProcessStats> list;
    for (const std::int32_t pid : pids)
        list.push_back(process(pid));
    return list;
}

/// The same processes in three orders, so that a mixed-up list shows.
inline ProcessSample processSample() {
    return {processList({1, 2, 3}), processList({3, 2}), processList({2, 1})};
}

}  // namespace vantor
