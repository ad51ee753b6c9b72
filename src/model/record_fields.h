#pragma once

#include <utility>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// The fields of every record with their written names, in declaration order: one list that both
/// the encoder and the decoder walk, so that neither can forget a field of the other.
///
/// forEachField(record, visit) calls visit("name", record.name) for each field.
namespace vantor {

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, CPUStats>
void forEachField(R& r, V&& visit) {
    visit("model", r.model);
    visit("totalUsage", r.totalUsage);
    visit("userUsage", r.userUsage);
    visit("systemUsage", r.systemUsage);
    visit("idleUsage", r.idleUsage);
    visit("perCoreUsage", r.perCoreUsage);
    visit("logicalCoreCount", r.logicalCoreCount);
    visit("physicalCoreCount", r.physicalCoreCount);
    visit("loadAverage", r.loadAverage);
    visit("nominalFrequencyHz", r.nominalFrequencyHz);
    visit("temperatureCelsius", r.temperatureCelsius);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, MemoryStats>
void forEachField(R& r, V&& visit) {
    visit("totalBytes", r.totalBytes);
    visit("usedBytes", r.usedBytes);
    visit("activeBytes", r.activeBytes);
    visit("wiredBytes", r.wiredBytes);
    visit("compressedBytes", r.compressedBytes);
    visit("cachedBytes", r.cachedBytes);
    visit("availableBytes", r.availableBytes);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, NetworkInterfaceStats>
void forEachField(R& r, V&& visit) {
    visit("name", r.name);
    visit("ipv4Address", r.ipv4Address);
    visit("ipv6Address", r.ipv6Address);
    visit("receivedBytes", r.receivedBytes);
    visit("sentBytes", r.sentBytes);
    visit("downloadBytesPerSecond", r.downloadBytesPerSecond);
    visit("uploadBytesPerSecond", r.uploadBytesPerSecond);
    visit("isPointToPoint", r.isPointToPoint);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, NetworkStats>
void forEachField(R& r, V&& visit) {
    visit("hostname", r.hostname);
    visit("primaryInterfaceName", r.primaryInterfaceName);
    visit("primaryIPv4Address", r.primaryIPv4Address);
    visit("primaryIPv6Address", r.primaryIPv6Address);
    visit("downloadBytesPerSecond", r.downloadBytesPerSecond);
    visit("uploadBytesPerSecond", r.uploadBytesPerSecond);
    visit("interfaces", r.interfaces);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, GPUStats>
void forEachField(R& r, V&& visit) {
    visit("id", r.id);
    visit("name", r.name);
    visit("isUnifiedMemory", r.isUnifiedMemory);
    visit("utilization", r.utilization);
    visit("temperatureCelsius", r.temperatureCelsius);
    visit("vramUsedBytes", r.vramUsedBytes);
    visit("vramTotalBytes", r.vramTotalBytes);
    visit("recommendedWorkingSetBytes", r.recommendedWorkingSetBytes);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, VolumeStats>
void forEachField(R& r, V&& visit) {
    visit("name", r.name);
    visit("path", r.path);
    visit("totalBytes", r.totalBytes);
    visit("availableBytes", r.availableBytes);
    visit("isInternal", r.isInternal);
    visit("isRemovable", r.isRemovable);
    visit("isReadOnly", r.isReadOnly);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, ProcessStats>
void forEachField(R& r, V&& visit) {
    visit("pid", r.pid);
    visit("name", r.name);
    visit("command", r.command);
    visit("cpuPercent", r.cpuPercent);
    visit("residentMemoryBytes", r.residentMemoryBytes);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, ProcessSample>
void forEachField(R& r, V&& visit) {
    visit("all", r.all);
    visit("sortedByCPU", r.sortedByCPU);
    visit("sortedByMemory", r.sortedByMemory);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, SystemInfoStats>
void forEachField(R& r, V&& visit) {
    visit("hostName", r.hostName);
    visit("hardwareModel", r.hardwareModel);
    visit("operatingSystem", r.operatingSystem);
    visit("kernelVersion", r.kernelVersion);
    visit("architecture", r.architecture);
    visit("isRunningUnderRosetta", r.isRunningUnderRosetta);
    visit("uptimeSeconds", r.uptimeSeconds);
    visit("thermalState", r.thermalState);
    visit("lowPowerModeEnabled", r.lowPowerModeEnabled);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, PowerStats>
void forEachField(R& r, V&& visit) {
    visit("name", r.name);
    visit("chargeFraction", r.chargeFraction);
    visit("isCharging", r.isCharging);
    visit("isConnectedToAC", r.isConnectedToAC);
    visit("timeRemainingMinutes", r.timeRemainingMinutes);
    visit("cycleCount", r.cycleCount);
}

template <class R, class V>
requires std::same_as<std::remove_const_t<R>, SystemSnapshot>
void forEachField(R& r, V&& visit) {
    visit("timestamp", r.timestamp);
    visit("cpu", r.cpu);
    visit("memory", r.memory);
    visit("network", r.network);
    visit("gpus", r.gpus);
    visit("volumes", r.volumes);
    visit("processes", r.processes);
    visit("system", r.system);
    visit("power", r.power);
}

}  // namespace vantor
