#include "probes/memory_reader.h"

#include <algorithm>
#include <array>

#include "model/checked.h"
#include "platform/sysctl.h"

namespace vantor {

namespace {

// Larger than the record that any kernel fills, so that a newer one does not fail for want of room.
constexpr std::size_t wordsOffered = 62;

using ByteCount = std::optional<std::uint64_t>;

ByteCount sum(std::uint64_t a, std::uint64_t b, std::uint64_t c) {
    const ByteCount first = checkedSum(a, b);
    return first ? checkedSum(*first, c) : std::nullopt;
}

/// Releases the port on every path.
class PortGuard {
  public:
    explicit PortGuard(HostMemory& host) : host_(host), port_(host.acquirePort()) {}
    PortGuard(const PortGuard&) = delete;
    PortGuard& operator=(const PortGuard&) = delete;
    ~PortGuard() { host_.releasePort(port_); }
    HostMemory::Port port() const { return port_; }

  private:
    HostMemory& host_;
    HostMemory::Port port_;
};

}  // namespace

std::optional<MemoryStats> MemoryReader::read() {
    using Layout = HostMemory::Layout;
    HostMemory& host = machine_->hostMemory();
    const PortGuard guard(host);
    std::array<std::uint32_t, wordsOffered> words{};
    if (host.vmStatistics(guard.port(), words).value_or(0) == 0) return std::nullopt;
    const auto pageSize = host.pageSize(guard.port());
    if (!pageSize) return std::nullopt;

    const ByteCount active = checkedProduct<std::uint64_t>(words[Layout::active], *pageSize);
    const ByteCount wired = checkedProduct<std::uint64_t>(words[Layout::wired], *pageSize);
    const ByteCount compressed =
        checkedProduct<std::uint64_t>(words[Layout::compressor], *pageSize);
    const std::uint64_t cachedPages =
        std::uint64_t{words[Layout::purgeable]} + words[Layout::inactive];
    const ByteCount cached = checkedProduct<std::uint64_t>(cachedPages, *pageSize);
    if (!active || !wired || !compressed || !cached) return std::nullopt;
    const ByteCount inUse = sum(*active, *wired, *compressed);
    if (!inUse) return std::nullopt;

    MemoryStats stats;
    stats.totalBytes = installedMemory();
    stats.usedBytes = std::min(*inUse, stats.totalBytes);
    stats.activeBytes = *active;
    stats.wiredBytes = *wired;
    stats.compressedBytes = *compressed;
    stats.cachedBytes = *cached;
    stats.availableBytes = stats.totalBytes - stats.usedBytes;
    return stats;
}

std::uint64_t MemoryReader::installedMemory() {
    std::call_once(installedMemoryIsKnown_, [this] {
        const auto size = Sysctl(machine_->kernelValues()).uint64("hw.memsize");
        installedMemory_ = size ? *size : machine_->processInfo().physicalMemory();
    });
    return installedMemory_;
}

}  // namespace vantor
