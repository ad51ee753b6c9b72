#pragma once

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/load_averages.h"

namespace vantor {

/// The first three numbers of /proc/loadavg. The C library's getloadavg reads the same file, but
/// opens it each time and knows no other root.
class LinuxLoadAverages : public LoadAverages {
  public:
    explicit LinuxLoadAverages(const LinuxRoots& roots) : file_(roots.proc / "loadavg") {}

    int getloadavg(std::span<double> averages) override;

  private:
    KernelFile file_;
};

}  // namespace vantor
