#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "probes/pid_map.h"
#include "probes/process_records.h"

namespace vantor {

/// The process reader's working storage, kept between its calls and given back only after it has
/// been far too large for a while: a burst of processes must not cost memory for ever, and one that
/// comes and goes must not cost allocations at each pass.
class ProcessStorage {
  public:
    /// `maximumPIDCapacity`: the most identifiers that are ever listed.
    explicit ProcessStorage(std::int64_t maximumPIDCapacity)
        : maximumPIDCapacity_(maximumPIDCapacity) {}

    PIDMap<CPUTimeSample> previousCPUByPID;  ///< times seen by the last call
    PIDMap<CPUTimeSample> nextCPUByPID;      ///< times seen by this call
    PIDMap<ProcessMetadata> metadataByPID;   ///< names and paths
    std::vector<std::int32_t> pidBuffer;     ///< receives the kernel's listing
    std::vector<RawProcess> rawProcessBuffer;
    PIDSet activePIDBuffer;                            ///< identifiers read this call
    std::vector<std::int32_t> staleMetadataPIDBuffer;  ///< cache entries to drop
    std::int64_t lastListedPIDCount = 0;
    std::optional<double> scratchOversizeSinceUptime;

    std::int64_t maximumPIDCapacity() const { return maximumPIDCapacity_; }

    /// Looks whether the storage is oversized for `active` processes at `now` (seconds of uptime),
    /// and frees it when it has been for 30 seconds.
    void trim(std::size_t active, double now);

    /// Forgets everything but the names.
    void reset();

  private:
    std::size_t target(std::size_t active) const;
    bool isOversized(std::size_t limit) const;
    void giveBack(std::size_t limit, std::size_t target);

    std::int64_t maximumPIDCapacity_;
};

}  // namespace vantor
