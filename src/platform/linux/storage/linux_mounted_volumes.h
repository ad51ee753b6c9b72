#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/linux_roots.h"
#include "platform/linux/storage/file_systems.h"
#include "platform/linux/storage/mount_table.h"
#include "platform/linux/storage/mount_table_file.h"
#include "platform/linux/storage/volume_list.h"
#include "platform/mounted_volumes.h"

namespace vantor {

/// The mounts of /proc/self/mountinfo, which is read again when it has changed. The table that an
/// enumeration goes by answers the questions that follow it; about what it does not list nothing is
/// known.
class LinuxMountedVolumes : public MountedVolumes {
  public:
    LinuxMountedVolumes(LinuxRoots roots, std::shared_ptr<FileSystems> fileSystems)
        : roots_(std::move(roots)),
          fileSystems_(std::move(fileSystems)),
          tableFile_(roots_.proc / "self/mountinfo") {}

    std::optional<std::vector<Volume>> mountedVolumes() override;
    Classification classification(const Volume& volume) override;

    /// Touches the file system of a local and browsable volume only; of others nothing is known.
    /// Those that may hang are told to the file systems when the volumes are enumerated.
    Details details(const Volume& volume) override;

  private:
    void take(std::string table);
    const ListedMount* find(const std::string& path);

    LinuxRoots roots_;
    std::shared_ptr<FileSystems> fileSystems_;
    MountTableFile tableFile_;
    std::string table_;
    std::vector<Mount> mounts_;  // parts of table_
    std::vector<ListedMount> listed_;
    std::vector<std::string> paths_;           // of listed_
    std::vector<FileSystems::Place> mayHang_;  // those of them that are asked
    std::size_t lastFound_ = 0;
};

}  // namespace vantor
