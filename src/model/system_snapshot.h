#pragma once

#include <optional>
#include <tuple>
#include <vector>

#include "model/cpu_stats.h"
#include "model/field.h"
#include "model/gpu_stats.h"
#include "model/memory_stats.h"
#include "model/network_stats.h"
#include "model/power_stats.h"
#include "model/process_stats.h"
#include "model/system_info_stats.h"
#include "model/timestamp.h"
#include "model/volume_stats.h"

namespace vantor {

/// The whole machine at one moment.
struct SystemSnapshot {
    Timestamp timestamp;  ///< when it was last committed
    CPUStats cpu;
    MemoryStats memory;
    NetworkStats network;
    std::vector<GPUStats> gpus;
    std::vector<VolumeStats> volumes;
    std::vector<ProcessStats> processes;
    SystemInfoStats system;
    std::optional<PowerStats> power;  ///< absent on machines without a battery

    bool operator==(const SystemSnapshot&) const = default;

    /// The placeholder until the first commit. Its timestamp is the earliest that the clock's type
    /// can hold, so any real one is later.
    static const SystemSnapshot& empty();
};

template <>
inline constexpr auto fieldsOf<SystemSnapshot> = std::tuple{
    Field{"timestamp", &SystemSnapshot::timestamp}, Field{"cpu", &SystemSnapshot::cpu},
    Field{"memory", &SystemSnapshot::memory},       Field{"network", &SystemSnapshot::network},
    Field{"gpus", &SystemSnapshot::gpus},           Field{"volumes", &SystemSnapshot::volumes},
    Field{"processes", &SystemSnapshot::processes}, Field{"system", &SystemSnapshot::system},
    Field{"power", &SystemSnapshot::power}};

}  // namespace vantor
