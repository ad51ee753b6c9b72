#pragma once

#include <string>
#include <vector>

#include "sampling/dashboard_state.h"

namespace vantor {

/// A state as after a good reading of an eight-core machine.
inline DashboardState stateWithCPU() {
    DashboardState state;
    CPUStats& cpu = state.snapshot.cpu;
    cpu.model = "Simulated Processor M1";
    cpu.totalUsage = 0.42;
    cpu.userUsage = 0.3025;
    cpu.systemUsage = 0.1175;
    cpu.idleUsage = 0.58;
    cpu.perCoreUsage = {0.9, 0.55, 0.3, 0.01, 0.005, 0, 1, 0.6};
    cpu.logicalCoreCount = 8;
    cpu.physicalCoreCount = 4;
    cpu.loadAverage = {1.5, 0.75, 0.333};
    cpu.nominalFrequencyHz = 2'400'000'000;
    cpu.temperatureCelsius = 54.4;
    state.histories.cpu = {0.1, 0.35, 0.2, 0.6, 0.42};
    state.revisions.cpu = 1;
    return state;
}

inline ProcessStats process(std::int32_t pid, std::string name, double cpuPercent) {
    ProcessStats stats;
    stats.pid = pid;
    stats.name = std::move(name);
    stats.command = "/usr/bin/" + stats.name.string();
    stats.cpuPercent = cpuPercent;
    stats.residentMemoryBytes = 1'572'864;
    return stats;
}

/// The busiest first, as they are handed to the views.
inline std::vector<ProcessStats> manyProcesses() {
    return {process(10, "compiler", 312.46), process(11, "browser", 45.04),
            process(12, "editor", 9.96),     process(13, "terminal", 0.5),
            process(14, "music", 0.1),       process(15, "indexer", 0.04),
            process(16, "clock", 0)};
}

}  // namespace vantor
