#pragma once

#include "platform/host_processors.h"

namespace vantor {

/// The Mach host's tick counters. The array of the processors is memory that the kernel maps into
/// the program at each question.
class MacHostProcessors : public HostProcessors {
  public:
    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> totalTicks(Port port, std::span<std::uint32_t> counters) override;
    std::optional<ProcessorArray> processorTicks(Port port) override;
    void releaseArray(const std::uint32_t* words, std::size_t byteCount) override;
};

}  // namespace vantor
