#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/file_descriptor.h"

namespace vantor::bench {

/// The least that anyone must do who wants to know what some small files of the kernel's say now:
/// read them again from descriptors that are kept open. Nothing is looked at.
class KeptFiles {
  public:
    /// Files that are not there are left out: many machines have neither zones nor profiles. `room`
    /// is the size of the buffer: the kernel makes one as large for some of its files.
    KeptFiles(const std::vector<std::string>& paths, std::size_t room);

    std::size_t count() const { return files_.size(); }

    /// Reads each of them; gives how many bytes they hold together.
    std::size_t read();

  private:
    std::vector<FileDescriptor> files_;
    std::vector<char> buffer_;
};

/// What memory is made of: /proc/meminfo, and what compressed disks and the cache of ZFS take.
std::vector<std::string> memoryFiles();

/// What changes of the system: the time since it was started, its name, its zones' temperatures and
/// its profile.
std::vector<std::string> systemFiles();

}  // namespace vantor::bench
