#include "platform/simulated/simulated_host_memory.h"

namespace vantor {

HostMemory::Port SimulatedHostMemory::acquirePort() {
    ++portsOutstanding;
    return 7;
}

void SimulatedHostMemory::releasePort(Port) {
    --portsOutstanding;
}

std::optional<std::size_t> SimulatedHostMemory::vmStatistics(Port, std::span<std::uint32_t> words) {
    wordsOffered = words.size();
    if (statisticsFail) return std::nullopt;
    if (words.size() <= Layout::compressor) return std::nullopt;
    words[Layout::active] = active;
    words[Layout::inactive] = inactive;
    words[Layout::wired] = wired;
    words[Layout::purgeable] = purgeable;
    words[Layout::compressor] = compressor;
    return wordCount;
}

std::optional<std::uint64_t> SimulatedHostMemory::pageSize(Port) {
    if (pageSizeFails) return std::nullopt;
    return bytesPerPage;
}

}  // namespace vantor
