#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/cpu_stats.h"
#include "platform/machine.h"
#include "probes/cpu_ticks.h"
#include "probes/hardware_temperature_reader.h"

namespace vantor {

/// Turns the kernel's cumulative processor ticks into usage over the interval since the last read.
///
/// One thread at a time: the sampler calls it on the cpu provider's queue only. Its lists and the
/// record it hands out are kept and reused, so that a read in the steady state allocates nothing.
class CPUReader {
  public:
    explicit CPUReader(std::shared_ptr<Machine> machine);

    /// The usage since the last read; null on the first read after creation or reset, when the
    /// counters cannot be read, and when no tick has passed. The record stays the reader's own and
    /// holds until the next read.
    const CPUStats* read();

    /// Forgets the baselines: the next read is a first read again.
    void resetDeltas();

  private:
    /// Who the processor is; found out once and never again.
    struct HardwareInfo {
        std::string model;
        std::int64_t logicalCoreCount = 0;
        std::int64_t physicalCoreCount = 0;
        std::optional<std::uint64_t> nominalFrequencyHz;
    };
    class PortGuard;

    std::optional<TickSet> readTotalTicks(HostProcessors::Port port);
    bool readCoreTicks(HostProcessors::Port port);
    void adoptCoreBaseline();
    void updateCoreUsage(bool coresWereRead);
    void updateLoadAverage();
    const HardwareInfo& hardwareInfo();

    std::shared_ptr<Machine> machine_;
    HardwareTemperatureReader temperatures_;
    std::optional<TickSet> previousTotalTicks_;
    std::vector<TickSet> previousCoreTicks_;
    std::vector<TickSet> coreTickBuffer_;  // receives a read, then trades places with the previous
    std::vector<double> lastCoreUsage_;
    std::vector<double> lastLoadAverage_;
    std::vector<double> loadAverageBuffer_;
    std::optional<HardwareInfo> cachedHardwareInfo_;
    CPUStats stats_;
};

}  // namespace vantor
