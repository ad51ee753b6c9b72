#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/process_sample.h"
#include "model/system_snapshot.h"
#include "sampling/histories.h"

namespace vantor {

/// One counter per section, wrapping. A view redraws when its section's counter is not the one that
/// it drew last.
struct Revisions {
    std::uint64_t cpu = 0;
    std::uint64_t memory = 0;
    std::uint64_t network = 0;
    std::uint64_t gpu = 0;
    std::uint64_t storage = 0;
    std::uint64_t system = 0;  ///< of the system record and of power, which share a card
    std::uint64_t processes = 0;

    bool operator==(const Revisions&) const = default;
};

/// Which lists have been answered at all. An empty answer changes no revision, but a card shows
/// that there is nothing only after one.
struct Answered {
    bool gpus = false;
    bool volumes = false;

    bool operator==(const Answered&) const = default;
};

/// Everything that the views show, published as one value.
struct DashboardState {
    SystemSnapshot snapshot = SystemSnapshot::empty();
    Histories histories;
    Revisions revisions;
    Answered answered;
    std::vector<ProcessStats> processesByCPU;
    std::vector<ProcessStats> processesByMemory;
    std::optional<std::string> gpuHistoryDeviceID;  ///< whose utilization histories.gpu holds

    bool operator==(const DashboardState&) const = default;
};

}  // namespace vantor
