#include "model/cpu_stats.h"
#include "model/network_stats.h"
#include "model/process_sample.h"
#include "model/system_snapshot.h"

// The placeholders are never destroyed: a reading may still be under way on a provider's thread
// when the program ends, and nobody waits for it.
namespace vantor {

const CPUStats& CPUStats::empty() {
    static const auto* const placeholder = [] {
        auto* const stats = new CPUStats;
        stats->model = "Detecting processor…";
        stats->idleUsage = 1.0;
        return stats;
    }();
    return *placeholder;
}

const NetworkStats& NetworkStats::empty() {
    static const auto* const placeholder = [] {
        auto* const stats = new NetworkStats;
        stats->hostname = "Detecting host…";
        return stats;
    }();
    return *placeholder;
}

const ProcessSample& ProcessSample::empty() {
    static const auto* const placeholder = new ProcessSample;
    return *placeholder;
}

const SystemSnapshot& SystemSnapshot::empty() {
    static const auto* const placeholder = [] {
        auto* const snapshot = new SystemSnapshot;
        snapshot->timestamp = Timestamp::min();
        snapshot->cpu = CPUStats::empty();
        snapshot->network = NetworkStats::empty();
        snapshot->system.hostName = "Detecting host…";
        snapshot->system.hardwareModel = "Detecting hardware…";
        snapshot->system.operatingSystem = "Detecting macOS…";
        snapshot->system.thermalState = "Unknown";
        return snapshot;
    }();
    return *placeholder;
}

}  // namespace vantor
