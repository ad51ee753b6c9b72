#pragma once

#include "platform/host_memory.h"

namespace vantor {

/// The Mach host's counts of pages.
class MacHostMemory : public HostMemory {
  public:
    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> vmStatistics(Port port, std::span<std::uint32_t> words) override;
    std::optional<std::uint64_t> pageSize(Port port) override;
};

}  // namespace vantor
