#pragma once

#include <optional>

#include "platform/host_memory.h"
#include "platform/linux/files/kernel_file.h"
#include "platform/linux/files/kernel_list_file.h"
#include "platform/linux/files/small_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/memory/memory_breakdown.h"
#include "platform/linux/memory/zram_devices.h"

namespace vantor {

/// Memory from /proc/meminfo, the zram devices and the cache of ZFS, as MemoryBreakdown has it.
///
/// All is read once per port, when first asked. A "page" is 1024 bytes, the unit of the kernel's
/// figures, so that nothing is rounded; on machines of 4 TiB and more it is doubled until every
/// count fits into 32 bits. Both calls fail when /proc/meminfo does not say how large the memory is
/// and how much of it is free.
class LinuxHostMemory : public HostMemory {
  public:
    explicit LinuxHostMemory(const LinuxRoots& roots);

    Port acquirePort() override;
    void releasePort(Port port) override;
    std::optional<std::size_t> vmStatistics(Port port, std::span<std::uint32_t> words) override;
    std::optional<std::uint64_t> pageSize(Port port) override;

  private:
    void readFor(Port port);
    std::optional<ArcStats> readArc();
    std::optional<std::uint64_t> readMinimumFree();

    LinuxRoots roots_;
    KernelFile memInfo_;
    KernelListFile arcStats_;
    std::optional<SmallFile> minimumFree_;  // opened only where it is needed
    ZramDevices zram_;
    std::uint32_t readingsUntilArcIsSought_ = 0;
    Port lastPort_ = 0;
    Port readPort_ = 0;  // the port that breakdown_ was read for; 0 = none
    std::optional<MemoryBreakdown> breakdown_;
    unsigned pageShift_ = 0;  // a page is 1024 bytes shifted by this
};

}  // namespace vantor
