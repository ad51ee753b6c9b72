#pragma once

#include <memory>

#include "platform/linux/file_systems.h"
#include "platform/linux/linux_roots.h"
#include "platform/mounted_volumes.h"

namespace vantor {

/// The mounts of /proc/self/mountinfo.
class LinuxMountedVolumes : public MountedVolumes {
  public:
    LinuxMountedVolumes(LinuxRoots roots, std::shared_ptr<FileSystems> fileSystems)
        : roots_(std::move(roots)), fileSystems_(std::move(fileSystems)) {}

    std::optional<std::vector<Volume>> mountedVolumes() override;
    Classification classification(const Volume& volume) override;
    Details details(const Volume& volume) override;

  private:
    LinuxRoots roots_;
    std::shared_ptr<FileSystems> fileSystems_;
};

}  // namespace vantor
