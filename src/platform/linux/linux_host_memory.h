#pragma once

#include "platform/host_memory.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Page counts from /proc/meminfo.
class LinuxHostMemory : public HostMemory {
  public:
    explicit LinuxHostMemory(LinuxRoots roots) : roots_(std::move(roots)) {}

    Port acquirePort() override { return 1; }
    void releasePort(Port) override {}
    std::optional<std::size_t> vmStatistics(Port port, std::span<std::uint32_t> words) override;
    std::optional<std::uint64_t> pageSize(Port port) override;

  private:
    LinuxRoots roots_;
};

}  // namespace vantor
