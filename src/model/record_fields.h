#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// The fields of every record with their written names: one table per record, constexpr and sorted
/// at compile time, from which the document's writer, the JSON coding and the tests' dumps follow.
/// A new field is added here and nowhere else. Equality is not made from it: the language's own
/// cannot forget a member.
///
/// Pure functions of constants, any thread.
namespace vantor {

/// The two kinds of values that contain others.
template <class T>
constexpr bool isOptional = false;
template <class T>
constexpr bool isOptional<std::optional<T>> = true;
template <class T>
constexpr bool isList = false;
template <class T>
constexpr bool isList<std::vector<T>> = true;

template <class Record, class Value>
struct Field {
    const char* name;
    Value Record::*member;
};
template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

/// A tuple of `Field`s in declaration order.
template <class Record>
inline constexpr auto fieldsOf = nullptr;

template <>
inline constexpr auto fieldsOf<CPUStats> =
    std::tuple{Field{"model", &CPUStats::model},
               Field{"totalUsage", &CPUStats::totalUsage},
               Field{"userUsage", &CPUStats::userUsage},
               Field{"systemUsage", &CPUStats::systemUsage},
               Field{"idleUsage", &CPUStats::idleUsage},
               Field{"perCoreUsage", &CPUStats::perCoreUsage},
               Field{"logicalCoreCount", &CPUStats::logicalCoreCount},
               Field{"physicalCoreCount", &CPUStats::physicalCoreCount},
               Field{"loadAverage", &CPUStats::loadAverage},
               Field{"nominalFrequencyHz", &CPUStats::nominalFrequencyHz},
               Field{"temperatureCelsius", &CPUStats::temperatureCelsius}};

template <>
inline constexpr auto fieldsOf<MemoryStats> =
    std::tuple{Field{"totalBytes", &MemoryStats::totalBytes},
               Field{"usedBytes", &MemoryStats::usedBytes},
               Field{"activeBytes", &MemoryStats::activeBytes},
               Field{"wiredBytes", &MemoryStats::wiredBytes},
               Field{"compressedBytes", &MemoryStats::compressedBytes},
               Field{"cachedBytes", &MemoryStats::cachedBytes},
               Field{"availableBytes", &MemoryStats::availableBytes}};

template <>
inline constexpr auto fieldsOf<NetworkInterfaceStats> =
    std::tuple{Field{"name", &NetworkInterfaceStats::name},
               Field{"ipv4Address", &NetworkInterfaceStats::ipv4Address},
               Field{"ipv6Address", &NetworkInterfaceStats::ipv6Address},
               Field{"receivedBytes", &NetworkInterfaceStats::receivedBytes},
               Field{"sentBytes", &NetworkInterfaceStats::sentBytes},
               Field{"downloadBytesPerSecond", &NetworkInterfaceStats::downloadBytesPerSecond},
               Field{"uploadBytesPerSecond", &NetworkInterfaceStats::uploadBytesPerSecond},
               Field{"isPointToPoint", &NetworkInterfaceStats::isPointToPoint}};

template <>
inline constexpr auto fieldsOf<NetworkStats> =
    std::tuple{Field{"hostname", &NetworkStats::hostname},
               Field{"primaryInterfaceName", &NetworkStats::primaryInterfaceName},
               Field{"primaryIPv4Address", &NetworkStats::primaryIPv4Address},
               Field{"primaryIPv6Address", &NetworkStats::primaryIPv6Address},
               Field{"downloadBytesPerSecond", &NetworkStats::downloadBytesPerSecond},
               Field{"uploadBytesPerSecond", &NetworkStats::uploadBytesPerSecond},
               Field{"interfaces", &NetworkStats::interfaces}};

template <>
inline constexpr auto fieldsOf<GPUStats> =
    std::tuple{Field{"id", &GPUStats::id},
               Field{"name", &GPUStats::name},
               Field{"isUnifiedMemory", &GPUStats::isUnifiedMemory},
               Field{"utilization", &GPUStats::utilization},
               Field{"temperatureCelsius", &GPUStats::temperatureCelsius},
               Field{"vramUsedBytes", &GPUStats::vramUsedBytes},
               Field{"vramTotalBytes", &GPUStats::vramTotalBytes},
               Field{"recommendedWorkingSetBytes", &GPUStats::recommendedWorkingSetBytes}};

template <>
inline constexpr auto fieldsOf<VolumeStats> =
    std::tuple{Field{"name", &VolumeStats::name},
               Field{"path", &VolumeStats::path},
               Field{"totalBytes", &VolumeStats::totalBytes},
               Field{"availableBytes", &VolumeStats::availableBytes},
               Field{"isInternal", &VolumeStats::isInternal},
               Field{"isRemovable", &VolumeStats::isRemovable},
               Field{"isReadOnly", &VolumeStats::isReadOnly}};

template <>
inline constexpr auto fieldsOf<ProcessStats> = std::tuple{
    Field{"pid", &ProcessStats::pid}, Field{"name", &ProcessStats::name},
    Field{"command", &ProcessStats::command}, Field{"cpuPercent", &ProcessStats::cpuPercent},
    Field{"residentMemoryBytes", &ProcessStats::residentMemoryBytes}};

template <>
inline constexpr auto fieldsOf<ProcessSample> =
    std::tuple{Field{"all", &ProcessSample::all}, Field{"sortedByCPU", &ProcessSample::sortedByCPU},
               Field{"sortedByMemory", &ProcessSample::sortedByMemory}};

template <>
inline constexpr auto fieldsOf<SystemInfoStats> =
    std::tuple{Field{"hostName", &SystemInfoStats::hostName},
               Field{"hardwareModel", &SystemInfoStats::hardwareModel},
               Field{"operatingSystem", &SystemInfoStats::operatingSystem},
               Field{"kernelVersion", &SystemInfoStats::kernelVersion},
               Field{"architecture", &SystemInfoStats::architecture},
               Field{"isRunningUnderRosetta", &SystemInfoStats::isRunningUnderRosetta},
               Field{"uptimeSeconds", &SystemInfoStats::uptimeSeconds},
               Field{"thermalState", &SystemInfoStats::thermalState},
               Field{"lowPowerModeEnabled", &SystemInfoStats::lowPowerModeEnabled}};

template <>
inline constexpr auto fieldsOf<PowerStats> =
    std::tuple{Field{"name", &PowerStats::name},
               Field{"chargeFraction", &PowerStats::chargeFraction},
               Field{"isCharging", &PowerStats::isCharging},
               Field{"isConnectedToAC", &PowerStats::isConnectedToAC},
               Field{"timeRemainingMinutes", &PowerStats::timeRemainingMinutes},
               Field{"cycleCount", &PowerStats::cycleCount}};

template <>
inline constexpr auto fieldsOf<SystemSnapshot> = std::tuple{
    Field{"timestamp", &SystemSnapshot::timestamp}, Field{"cpu", &SystemSnapshot::cpu},
    Field{"memory", &SystemSnapshot::memory},       Field{"network", &SystemSnapshot::network},
    Field{"gpus", &SystemSnapshot::gpus},           Field{"volumes", &SystemSnapshot::volumes},
    Field{"processes", &SystemSnapshot::processes}, Field{"system", &SystemSnapshot::system},
    Field{"power", &SystemSnapshot::power}};

template <class Record>
inline constexpr std::size_t fieldCount =
    std::tuple_size_v<std::remove_const_t<decltype(fieldsOf<Record>)>>;

/// Positions in `fieldsOf`, in the order of the names' bytes.
template <class Record>
inline constexpr auto fieldsByName = [] {
    const auto names =
        std::apply([](const auto&... field) { return std::array{std::string_view(field.name)...}; },
                   fieldsOf<Record>);
    std::array<std::size_t, fieldCount<Record>> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return names[a] < names[b]; });
    return order;
}();

/// Calls visit("name", record.name) for each field in declaration order while it returns true.
/// Returns whether it always did.
template <class Record, class Visit>
bool forEachField(Record& record, Visit&& visit) {
    return std::apply(
        [&](const auto&... field) { return (visit(field.name, record.*(field.member)) && ...); },
        fieldsOf<std::remove_const_t<Record>>);
}

/// The same in the order of the names.
template <class Record, class Visit>
bool forEachFieldByName(Record& record, Visit&& visit) {
    using Plain = std::remove_const_t<Record>;
    const auto visitOne = [&](const auto& field) {
        return visit(field.name, record.*(field.member));
    };
    return [&]<std::size_t... rank>(std::index_sequence<rank...>) {
        return (visitOne(std::get<fieldsByName<Plain>[rank]>(fieldsOf<Plain>)) && ...);
    }
    (std::make_index_sequence<fieldCount<Plain>>());
}

}  // namespace vantor
