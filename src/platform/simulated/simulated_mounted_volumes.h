#pragma once

#include "platform/mounted_volumes.h"

namespace vantor {

/// Volumes by script.
class SimulatedMountedVolumes : public MountedVolumes {
  public:
    std::optional<std::vector<Volume>> mountedVolumes() override;
    Classification classification(const Volume& volume) override;
    Details details(const Volume& volume) override;
};

}  // namespace vantor
