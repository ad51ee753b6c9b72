#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "model/process_sample.h"
#include "platform/machine.h"
#include "probes/process_names.h"
#include "probes/process_storage.h"

namespace vantor {

/// Lists every process once per call, with its processor share since the last call and its resident
/// memory, and the 18 heaviest by each.
///
/// One thread at a time: the sampler calls it on the process provider's queue only. A process is
/// distinguished by its start time from another with the same identifier. Names and paths are
/// looked up when a process is first seen, soon again, and then every ten seconds, because that is
/// the expensive part; where the system knows that nothing is new, once a minute.
class ProcessReader {
  public:
    explicit ProcessReader(std::shared_ptr<Machine> machine);

    /// Empty on the first call after creation or reset, which only takes a baseline, and when
    /// nothing could be listed; a possibly incomplete list counts as none.
    ProcessSample read();

    /// Forgets the times, so that the next call takes a baseline again; names stay known.
    void resetDeltas();

    /// The working storage, for tests and diagnostics that watch its size.
    const ProcessStorage& storage() const { return storage_; }

  private:
    bool listPIDs();
    void readRawProcesses(double now);
    bool readProcess(std::int32_t pid, double now, RawProcess& process);
    const ProcessMetadata& metadata(std::int32_t pid, const ProcessIdentity& identity, double now);
    void forgetStaleMetadata();
    void takeBaseline();
    ProcessSample measure(double elapsed);
    double cpuPercent(const RawProcess& process, double elapsed) const;

    std::shared_ptr<Machine> machine_;
    double nativeTimebaseFrequencyHz_;
    ProcessStorage storage_;
    ProcessNames names_;
    std::optional<double> previousReadUptime_;
};

}  // namespace vantor
