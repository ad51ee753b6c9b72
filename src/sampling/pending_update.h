#pragma once

#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/power_read_result.h"
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

    /// Takes a provider's result as the newest of that section. Returns false for one that changes
    /// nothing: an absent record, an empty process list, a failure of power.
    template <class Record>
    bool put(std::optional<Record> PendingUpdate::*section, std::optional<Record>&& result) {
        if (!result) return false;
        this->*section = std::move(result);
        return true;
    }
    template <class Record>
    bool put(std::optional<Record> PendingUpdate::*section, std::type_identity_t<Record>&& result) {
        return put(section, std::optional(std::move(result)));
    }
    bool put(std::optional<ProcessSample> PendingUpdate::*section, ProcessSample&& result) {
        // An empty list is a failed listing: this very process exists.
        if (result.all.empty()) return false;
        return put(section, std::optional(std::move(result)));
    }
    bool put(std::optional<PowerStats> PendingUpdate::*section, const PowerReadResult& result) {
        if (!result.isUpdate()) return false;
        this->*section = result.stats();
        hasPowerUpdate = true;
        return true;
    }
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
