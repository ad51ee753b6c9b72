#pragma once

#include <optional>
#include <tuple>
#include <vector>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

namespace vantor {

/// Results that have arrived and are not committed; of each section the newest.
struct PendingUpdate {
    std::optional<CPUStats> cpu;
    std::optional<MemoryStats> memory;
    std::optional<NetworkStats> network;
    std::optional<SystemInfoStats> system;
    std::optional<ProcessSample> processSample;
    std::optional<std::vector<GPUStats>> gpus;
    std::optional<std::vector<VolumeStats>> volumes;
    std::optional<PowerStats> power;  ///< means something only with hasPowerUpdate
    bool hasPowerUpdate = false;      ///< "no battery" is a result too

    bool isEmpty() const;
};

/// The sections that are there or not, in the order in which they are committed; power follows
/// them.
inline constexpr auto pendingSections =
    std::tuple{&PendingUpdate::cpu,    &PendingUpdate::memory,        &PendingUpdate::network,
               &PendingUpdate::system, &PendingUpdate::processSample, &PendingUpdate::gpus,
               &PendingUpdate::volumes};

inline bool PendingUpdate::isEmpty() const {
    const auto isAbsent = [this](auto section) { return !(this->*section).has_value(); };
    return !hasPowerUpdate &&
           std::apply([&](auto... section) { return (isAbsent(section) && ...); }, pendingSections);
}

}  // namespace vantor
