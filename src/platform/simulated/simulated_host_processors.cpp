#include "platform/simulated/simulated_host_processors.h"

#include <algorithm>
#include <array>

namespace vantor {

namespace {

void add(SimulatedHostProcessors::Ticks& to, const SimulatedHostProcessors::Ticks& ticks) {
    to.user += ticks.user;  // wraps at 32 bits, like the real ones
    to.system += ticks.system;
    to.idle += ticks.idle;
    to.nice += ticks.nice;
}

}  // namespace

void SimulatedHostProcessors::spend(std::size_t processor, Ticks ticks) {
    add(total, ticks);
    add(processors.at(processor), ticks);
}

HostProcessors::Port SimulatedHostProcessors::acquirePort() {
    ++portsOutstanding;
    return 7;
}

void SimulatedHostProcessors::releasePort(Port) {
    --portsOutstanding;
}

std::optional<std::size_t> SimulatedHostProcessors::totalTicks(Port,
                                                               std::span<std::uint32_t> counters) {
    ++totalReads;
    if (onTotalTicks) onTotalTicks();
    if (totalFails) return std::nullopt;
    const std::array values{total.user, total.system, total.idle, total.nice};
    std::copy_n(values.begin(), std::min(values.size(), counters.size()), counters.begin());
    add(total, growth);
    for (Ticks& processor : processors)
        add(processor, growth);
    return totalCounters;
}

std::optional<HostProcessors::ProcessorArray> SimulatedHostProcessors::processorTicks(Port) {
    ++processorReads;
    if (processorsFail) return std::nullopt;
    const auto count = static_cast<std::uint32_t>(processors.size());
    if (processorsAnswerNoArray) return ProcessorArray{count, nullptr, 0};
    words_.assign(1, 0);  // never empty: even an array of no processors has an address
    words_.clear();
    for (const Ticks& p : processors) {
        words_.insert(words_.end(), {p.user, p.system, p.idle, p.nice});
    }
    ++arraysOutstanding;
    return ProcessorArray{claimedProcessorCount.value_or(count), words_.data(),
                          claimedWordCount.value_or(static_cast<std::uint32_t>(words_.size()))};
}

void SimulatedHostProcessors::releaseArray(const std::uint32_t*, std::size_t) {
    --arraysOutstanding;
}

}  // namespace vantor
