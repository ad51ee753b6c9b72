#pragma once

#include "ui/cpu_samples.h"

namespace vantor {

inline constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

inline VolumeStats volume(const std::string& name, std::uint64_t total, std::uint64_t available) {
    VolumeStats stats;
    stats.name = name;
    stats.path = "/Volumes/" + name;
    stats.totalBytes = total;
    stats.availableBytes = available;
    stats.isInternal = true;
    return stats;
}

inline GPUStats graphics(const std::string& name) {
    GPUStats gpu;
    gpu.id = name;
    gpu.name = name;
    gpu.utilization = 0.376;
    gpu.temperatureCelsius = 61.5;
    gpu.vramUsedBytes = 3 * gibibyte / 2;
    gpu.vramTotalBytes = 8 * gibibyte;
    return gpu;
}

/// A state as after a good reading of everything.
inline DashboardState stateWithEverything() {
    DashboardState state = stateWithCPU();
    state.snapshot.memory = {16 * gibibyte, 7 * gibibyte, 4 * gibibyte, 2 * gibibyte,
                             1 * gibibyte,  3 * gibibyte, 9 * gibibyte};
    NetworkStats& network = state.snapshot.network;
    network.hostname = "simbook.local";
    network.primaryInterfaceName = "en0";
    network.primaryIPv4Address = "192.168.1.20";
    network.downloadBytesPerSecond = 1'250'000;
    network.uploadBytesPerSecond = 64'000;
    network.interfaces.resize(2);
    network.interfaces[0].name = "en0";
    network.interfaces[0].ipv4Address = "192.168.1.20";
    network.interfaces[1].name = "utun4";
    state.snapshot.gpus = {graphics("Simulated Graphics")};
    state.snapshot.volumes = {volume("Macintosh HD", 400'000'000'000, 100'000'000'000)};
    SystemInfoStats& system = state.snapshot.system;
    system.hostName = "simbook.local";
    system.hardwareModel = "SimBook1,1";
    system.operatingSystem = "macOS 14.2.1";
    system.kernelVersion = "23A344";
    system.architecture = "arm64";
    system.uptimeSeconds = 183'000;
    system.thermalState = "Nominal";
    state.snapshot.power = PowerStats{"InternalBattery-0", 0.8, false, false, 200, 312};
    state.snapshot.processes = manyProcesses();
    state.processesByCPU = manyProcesses();
    state.processesByMemory = manyProcesses();
    state.histories.memory = {0.2, 0.4, 0.44};
    state.histories.download = {0, 400'000, 1'250'000};
    state.histories.upload = {64'000, 0, 64'000};
    state.histories.gpu = {0.1, 0.9, 0.376};
    state.revisions = {1, 1, 1, 1, 1, 1, 1};
    state.answered = {true, true};
    return state;
}

}  // namespace vantor
