#include "model/cpu_stats.h"
#include "model/network_stats.h"
#include "model/never_destroyed.h"
#include "model/process_sample.h"
#include "model/system_snapshot.h"

namespace vantor {

namespace {

CPUStats emptyCPU() {
    CPUStats stats;
    stats.model = "Detecting processor…";
    stats.idleUsage = 1.0;
    return stats;
}

NetworkStats emptyNetwork() {
    NetworkStats stats;
    stats.hostname = "Detecting host…";
    return stats;
}

SystemSnapshot emptySnapshot() {
    SystemSnapshot snapshot;
    snapshot.timestamp = Timestamp::min();
    snapshot.cpu = emptyCPU();
    snapshot.network = emptyNetwork();
    snapshot.system.hostName = "Detecting host…";
    snapshot.system.hardwareModel = "Detecting hardware…";
    snapshot.system.operatingSystem = "Detecting macOS…";
    snapshot.system.thermalState = "Unknown";
    return snapshot;
}

}  // namespace

const CPUStats& CPUStats::empty() {
    static const NeverDestroyed placeholder(emptyCPU());
    return placeholder.get();
}

const NetworkStats& NetworkStats::empty() {
    static const NeverDestroyed placeholder(emptyNetwork());
    return placeholder.get();
}

const ProcessSample& ProcessSample::empty() {
    static const NeverDestroyed placeholder(ProcessSample{});
    return placeholder.get();
}

const SystemSnapshot& SystemSnapshot::empty() {
    static const NeverDestroyed placeholder(emptySnapshot());
    return placeholder.get();
}

}  // namespace vantor
