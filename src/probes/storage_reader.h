#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/volume_stats.h"
#include "platform/machine.h"
#include "probes/name_ranks.h"

namespace vantor {

/// Lists the mounted, visible, local, browsable volumes: the root volume first, then the internal
/// ones, then by name. One thread at a time.
class StorageReader {
  public:
    explicit StorageReader(std::shared_ptr<Machine> machine);

    /// Absent when no trustworthy list could be made this time, so that a volume does not flicker
    /// out of sight because a query failed for a moment.
    std::optional<std::vector<VolumeStats>> read();

  private:
    /// What one pass met with.
    struct Findings {
        std::vector<VolumeStats> volumes;
        bool classificationWasUnknown = false;
        bool listedVolumeBecameUnknown = false;
        bool isIncomplete = false;
    };

    void examine(const MountedVolumes::Volume& volume, Findings& findings);

    std::shared_ptr<Machine> machine_;
    NameRanks ranks_;
    std::set<std::string> lastEligiblePaths_;  ///< of the last list that was returned
};

}  // namespace vantor
