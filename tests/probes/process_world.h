#pragma once

#include <chrono>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "probes/process_reader.h"

namespace vantor {

/// A process reader on a simulated machine; the uptime begins at 1,000 seconds.
class ProcessWorld {
  public:
    ProcessWorld() { machine->clock()->setNow(std::chrono::seconds{1000}); }

    double now() const { return machine->clock()->seconds(); }
    void wind(double seconds) {
        machine->clock()->wind(std::chrono::nanoseconds{std::llround(seconds * 1e9)});
    }
    ProcessSample readAfter(double seconds) {
        wind(seconds);
        return reader->read();
    }

    std::shared_ptr<SimulatedMachine> machine = std::make_shared<SimulatedMachine>();
    SimulatedProcessTable& table = machine->processTable();
    std::optional<ProcessReader> reader{std::in_place, machine};
};

inline std::vector<std::int32_t> pidsOf(const std::vector<ProcessStats>& list) {
    std::vector<std::int32_t> pids;
    for (const ProcessStats& process : list)
        pids.push_back(process.pid);
    return pids;
}

/// The row of `pid`; one that no test expects when there is none.
inline ProcessStats rowOf(const ProcessSample& sample, std::int32_t pid) {
    for (const ProcessStats& process : sample.all) {
        if (process.pid == pid) return process;
    }
    ProcessStats none;
    none.pid = -1;
    none.cpuPercent = -1;
    return none;
}

}  // namespace vantor
