#pragma once

#include <cstdint>
#include <vector>

#include "platform/host_processors.h"
#include "platform/linux/files/kernel_file.h"
#include "platform/linux/files/monotonic_counter.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/processor/proc_stat.h"

namespace vantor {

/// Processor ticks from /proc/stat.
///
/// The file is read once per port, when first asked, so that the totals and the processors of one
/// reading are of one moment. Counters are modulo 2^32, and only their growth means something: a
/// reader pairs processors by their place in the list, so each place grows by what the processor
/// now in it has done since the last reading. One that took another's place has then done nothing
/// yet, instead of the difference between two strangers.
class LinuxHostProcessors : public HostProcessors {
  public:
    explicit LinuxHostProcessors(const LinuxRoots& roots) : file_(roots.proc / "stat") {}

    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> totalTicks(Port port, std::span<std::uint32_t> counters) override;
    std::optional<ProcessorArray> processorTicks(Port port) override;
    void releaseArray(const std::uint32_t* words, std::size_t byteCount) override;

  private:
    struct SteadyTicks {
        MonotonicCounter user, system, idle, nice;
        ProcStat::Ticks update(const ProcStat::Ticks& raw);
    };
    struct Known {
        SteadyTicks steady;
        ProcStat::Ticks last;
        std::uint64_t reading = 0;  // the one it was last seen in
    };

    void readFor(Port port);

    KernelFile file_;
    ProcStat stat_;
    Port lastPort_ = 0;
    Port readPort_ = 0;  // the port that stat_ was read for; 0 = none
    SteadyTicks total_;
    std::vector<Known> byID_;           // each processor ever seen, by the kernel's number
    std::vector<std::uint32_t> words_;  // four counters for each place
    std::uint64_t reading_ = 1;
};

}  // namespace vantor
