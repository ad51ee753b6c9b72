#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/mounted_volumes.h"

namespace vantor {

/// Volumes by script. Set the members before the call that is to see them; nothing locks.
class SimulatedMountedVolumes : public MountedVolumes {
  public:
    struct Entry {
        Volume volume;
        Classification classification;
        Details details;
    };

    std::vector<Entry> volumes;
    bool enumerationFails = false;

    /// Runs at the start of mountedVolumes; may block for ever.
    std::function<void()> onMountedVolumes;

    int enumerations = 0;
    std::vector<std::string> detailedPaths;  ///< of the details that were asked for

    /// Adds a local, browsable, internal and writable volume that is half full.
    Entry& add(const std::string& path, std::optional<std::string> name,
               std::int64_t totalCapacity = 1'000'000'000);
    /// The volume with that path, which must be there.
    Entry& at(const std::string& path);

    std::optional<std::vector<Volume>> mountedVolumes() override;
    Classification classification(const Volume& volume) override;
    Details details(const Volume& volume) override;
};

}  // namespace vantor
