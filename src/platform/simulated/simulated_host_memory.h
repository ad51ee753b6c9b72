#pragma once

#include "platform/host_memory.h"

namespace vantor {

/// Page counts by script. Set the members before the call that is to see them; nothing locks.
class SimulatedHostMemory : public HostMemory {
  public:
    std::uint32_t active = 0;
    std::uint32_t inactive = 0;
    std::uint32_t wired = 0;
    std::uint32_t purgeable = 0;
    std::uint32_t compressor = 0;
    std::uint64_t bytesPerPage = 16384;

    bool statisticsFail = false;
    bool pageSizeFails = false;
    std::size_t wordCount = 38;  ///< returned as the number of words filled

    int portsOutstanding = 0;
    std::size_t wordsOffered = 0;  ///< the size of the last buffer

    /// How many pages that many bytes are.
    std::uint32_t pagesOf(std::uint64_t bytes) const {
        return static_cast<std::uint32_t>(bytes / bytesPerPage);
    }

    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> vmStatistics(Port port, std::span<std::uint32_t> words) override;
    std::optional<std::uint64_t> pageSize(Port port) override;
};

}  // namespace vantor
