#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

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

/// When each sample of a history was committed, in seconds of the machine's uptime: pauses and
/// other intervals make the distances uneven.
struct HistoryTimes {
    std::vector<double> cpu;
    std::vector<double> memory;
    std::vector<double> network;  ///< of download and of upload
    std::vector<double> gpu;

    bool operator==(const HistoryTimes&) const = default;
};

/// The bounded series that the charts draw, each oldest first.
struct Histories {
    std::vector<double> cpu;       ///< total usage, 0 to 1
    std::vector<double> memory;    ///< used fraction, 0 to 1
    std::vector<double> download;  ///< bytes per second
    std::vector<double> upload;
    std::vector<double> gpu;  ///< utilization of one device, 0 to 1
    HistoryTimes times;

    bool operator==(const Histories&) const = default;
};

/// Calls `visit` with each series, and with the times of each.
template <class Visit>
void forEachHistory(Histories& histories, Visit&& visit) {
    HistoryTimes& times = histories.times;
    for (auto* history : {&histories.cpu, &histories.memory, &histories.download, &histories.upload,
                          &histories.gpu, &times.cpu, &times.memory, &times.network, &times.gpu})
        visit(*history);
}

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
