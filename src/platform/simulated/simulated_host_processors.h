#pragma once

#include <functional>
#include <vector>

#include "platform/host_processors.h"

namespace vantor {

/// Processor counters by script. The members are the script: set them before the call that is to
/// see them; nothing here locks.
class SimulatedHostProcessors : public HostProcessors {
  public:
    struct Ticks {
        std::uint32_t user = 0;
        std::uint32_t system = 0;
        std::uint32_t idle = 0;
        std::uint32_t nice = 0;
    };

    Ticks total;
    std::vector<Ticks> processors;

    bool totalFails = false;
    std::size_t totalCounters = 4;  ///< returned as the number of counters filled
    bool processorsFail = false;
    bool processorsAnswerNoArray = false;
    std::optional<std::uint32_t> claimedProcessorCount;  ///< instead of the true one
    std::optional<std::uint32_t> claimedWordCount;

    /// Added to every counter after each reading of the totals, so that time seems to pass.
    Ticks growth;

    /// Runs at the start of totalTicks; may block for ever.
    std::function<void()> onTotalTicks;

    int portsOutstanding = 0;
    int arraysOutstanding = 0;
    int totalReads = 0;
    int processorReads = 0;

    /// Adds to the totals and to one processor's counters.
    void spend(std::size_t processor, Ticks ticks);

    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> totalTicks(Port port, std::span<std::uint32_t> counters) override;
    std::optional<ProcessorArray> processorTicks(Port port) override;
    void releaseArray(const std::uint32_t* words, std::size_t byteCount) override;

  private:
    std::vector<std::uint32_t> words_;
};

}  // namespace vantor
