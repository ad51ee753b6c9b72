#include "platform/linux/memory/linux_host_memory.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace vantor {

namespace {

constexpr std::uint64_t unit = 1024;
constexpr std::size_t recordWords = HostMemory::Layout::compressor + 1;

// Most machines have no ZFS; a minute without its cache at the usual interval, should it come.
constexpr std::uint32_t readingsBetweenSearches = 60;

}  // namespace

LinuxHostMemory::LinuxHostMemory(const LinuxRoots& roots)
    : roots_(roots),
      memInfo_(roots.proc / "meminfo"),
      arcStats_(roots.proc / "spl/kstat/zfs/arcstats"),
      zram_(roots) {}

HostMemory::Port LinuxHostMemory::acquirePort() {
    if (++lastPort_ == 0) ++lastPort_;
    return lastPort_;
}

void LinuxHostMemory::releasePort(Port) {
    readPort_ = 0;
}

void LinuxHostMemory::readFor(Port port) {
    if (readPort_ == port) return;
    readPort_ = port;
    breakdown_.reset();
    const auto info = MemInfo::parse(memInfo_.read().value_or(std::string_view{}));
    if (!info) return;
    MemoryBreakdown::ExtraInputs extra;
    extra.zramBytes = zram_.usedBytes(info->swapTotal);
    extra.arc = readArc();
    if (!info->available) extra.minimumFree = readMinimumFree();
    breakdown_ = MemoryBreakdown::of(*info, extra);
    pageShift_ = 0;
    while (info->total >> pageShift_ > std::numeric_limits<std::uint32_t>::max())
        ++pageShift_;
}

std::optional<ArcStats> LinuxHostMemory::readArc() {
    if (readingsUntilArcIsSought_ > 0) {
        --readingsUntilArcIsSought_;
        return std::nullopt;
    }
    const auto text = arcStats_.read();
    if (!text) {
        readingsUntilArcIsSought_ = readingsBetweenSearches;
        return std::nullopt;
    }
    return ArcStats::parse(*text);
}

std::optional<std::uint64_t> LinuxHostMemory::readMinimumFree() {
    if (!minimumFree_) minimumFree_.emplace(roots_.proc / "sys/vm/min_free_kbytes");
    std::array<char, 32> buffer{};
    const auto text = minimumFree_->readText(buffer);
    if (!text) return std::nullopt;
    std::uint64_t number = 0;
    const char* const end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data(), end, number);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

std::optional<std::size_t> LinuxHostMemory::vmStatistics(Port port,
                                                         std::span<std::uint32_t> words) {
    readFor(port);
    if (!breakdown_ || words.size() < recordWords) return std::nullopt;
    const auto pages = [this](std::uint64_t amount) {
        return static_cast<std::uint32_t>(amount >> pageShift_);
    };
    std::fill_n(words.begin(), recordWords, 0U);
    words[Layout::wired] = pages(breakdown_->wired);
    words[Layout::compressor] = pages(breakdown_->compressor);
    // The whole is rounded rather than this part of it, so that the sum is off by less than a page.
    words[Layout::active] = pages(breakdown_->active + breakdown_->wired + breakdown_->compressor) -
                            words[Layout::wired] - words[Layout::compressor];
    words[Layout::inactive] = pages(breakdown_->inactive);
    words[Layout::purgeable] = pages(breakdown_->purgeable);
    return recordWords;
}

std::optional<std::uint64_t> LinuxHostMemory::pageSize(Port port) {
    readFor(port);
    if (!breakdown_) return std::nullopt;
    return unit << pageShift_;
}

}  // namespace vantor
