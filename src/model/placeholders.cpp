#include "model/cpu_stats.h"
#include "model/network_stats.h"
#include "model/process_sample.h"
#include "model/system_snapshot.h"

namespace vantor {

const CPUStats& CPUStats::empty() {
    static const CPUStats placeholder = [] {
        CPUStats stats;
        stats.model = "Detecting processor…";
        stats.idleUsage = 1.0;
        return stats;
    }();
    return placeholder;
}

const NetworkStats& NetworkStats::empty() {
    static const NetworkStats placeholder = [] {
        NetworkStats stats;
        stats.hostname = "Detecting host…";
        return stats;
    }();
    return placeholder;
}

const ProcessSample& ProcessSample::empty() {
    static const ProcessSample placeholder;
    return placeholder;
}

const SystemSnapshot& SystemSnapshot::empty() {
    static const SystemSnapshot placeholder = [] {
        SystemSnapshot snapshot;
        snapshot.timestamp = Timestamp::min();
        snapshot.cpu = CPUStats::empty();
        snapshot.network = NetworkStats::empty();
        snapshot.system.hostName = "Detecting host…";
        snapshot.system.hardwareModel = "Detecting hardware…";
        snapshot.system.operatingSystem = "Detecting macOS…";
        snapshot.system.thermalState = "Unknown";
        return snapshot;
    }();
    return placeholder;
}

}  // namespace vantor
