#include "platform/linux/sensors/processor_sensors.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/linux/sensors/processor_sensor_scan.h"

namespace vantor {

namespace {

std::optional<double> hottestOf(const ProcessorSensorList::Group& group) {
    std::optional<double> hottest;
    for (const ProcessorSensor* const sensor : group) {
        if (const auto temperature = sensor->read()) {
            hottest = std::max(hottest.value_or(*temperature), *temperature);
        }
    }
    return hottest;
}

}  // namespace

ProcessorSensors::ProcessorSensors(const LinuxRoots& roots, Uptime uptime)
    : folder_(roots.sys / "class"), uptime_(std::move(uptime)) {}

double ProcessorSensors::monotonicSeconds() {
    // The standard library's steady clock is CLOCK_MONOTONIC here.
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

ProcessorSensors::List ProcessorSensors::list() {
    return listNotOlderThan(scanInterval);
}

ProcessorSensors::List ProcessorSensors::listNotOlderThan(double seconds) {
    const double now = uptime_();
    {
        const std::lock_guard guard(lock_);
        if (isScanning_ || (scannedAt_ && now - *scannedAt_ < seconds)) return list_;
        isScanning_ = true;
    }
    List fresh = scanProcessorSensors(folder_);
    List old;  // its files are closed after the lock is given back
    const std::lock_guard guard(lock_);
    old = std::exchange(list_, fresh);
    scannedAt_ = now;
    isScanning_ = false;
    return fresh;
}

template <class Select, class Read>
std::optional<double> ProcessorSensors::hottest(Select select, Read read) {
    const List before = list();
    if (select(*before).empty()) return std::nullopt;
    if (const auto temperature = read(*before)) return temperature;
    // The driver may have come anew, with other numbers.
    const List after = listNotOlderThan(retryInterval);
    return after == before ? std::nullopt : read(*after);
}

std::optional<double> ProcessorSensors::hottestPackage() {
    return hottest(
        [](const ProcessorSensorList& list) -> const auto& { return list.packages; },
        [](const ProcessorSensorList& list) {
            const auto temperature = hottestOf(list.packages);
            return temperature ? temperature : hottestOf(list.zones);
        });
}

std::optional<double> ProcessorSensors::hottestCore() {
    const auto select = [](const ProcessorSensorList& list) -> const auto& {
        return list.cores;
    };
    return hottest(select, [select](const auto& list) { return hottestOf(select(list)); });
}

}  // namespace vantor
