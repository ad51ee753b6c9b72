#pragma once

#include <optional>
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

    bool isEmpty() const {
        return !cpu && !memory && !network && !system && !processSample && !gpus && !volumes &&
               !hasPowerUpdate;
    }
};

}  // namespace vantor
