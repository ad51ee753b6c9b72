#include "platform/linux/processor/linux_host_processors.h"

#include <algorithm>
#include <array>

namespace vantor {

namespace {

// More than any kernel is built for; a larger number is a damaged file, not a machine.
constexpr std::uint32_t hostProcessorsProcessorLimit = 65536;

constexpr std::uint32_t low(std::uint64_t ticks) {
    return static_cast<std::uint32_t>(ticks);
}

std::array<std::uint32_t, 4> words(const ProcStat::Ticks& ticks) {
    return {low(ticks.user), low(ticks.system), low(ticks.idle), low(ticks.nice)};
}

}  // namespace

ProcStat::Ticks LinuxHostProcessors::SteadyTicks::update(const ProcStat::Ticks& raw) {
    // When one counter starts again, what it did in this interval is lost. The others must lose it
    // too: busy ticks without the idle ones beside them would read as 100 %.
    if (user.restartsAt(raw.user) || system.restartsAt(raw.system) || idle.restartsAt(raw.idle) ||
        nice.restartsAt(raw.nice)) {
        return {user.restart(raw.user), system.restart(raw.system), idle.restart(raw.idle),
                nice.restart(raw.nice)};
    }
    return {user.update(raw.user), system.update(raw.system), idle.update(raw.idle),
            nice.update(raw.nice)};
}

HostProcessors::Port LinuxHostProcessors::acquirePort() {
    if (++lastPort_ == 0) ++lastPort_;
    return lastPort_;
}

void LinuxHostProcessors::releasePort(Port) {
    readPort_ = 0;
}

void LinuxHostProcessors::readFor(Port port) {
    if (readPort_ == port) return;
    readPort_ = port;
    stat_.parse(file_.read().value_or(std::string_view{}));
}

std::optional<std::size_t> LinuxHostProcessors::totalTicks(Port port,
                                                           std::span<std::uint32_t> counters) {
    readFor(port);
    if (!stat_.total) return std::nullopt;
    const auto values = words(total_.update(*stat_.total));
    const std::size_t count = std::min(values.size(), counters.size());
    std::copy_n(values.begin(), count, counters.begin());
    return count;
}

std::optional<HostProcessors::ProcessorArray> LinuxHostProcessors::processorTicks(Port port) {
    readFor(port);
    if (!stat_.processorsAreWhole) return std::nullopt;
    words_.resize(stat_.processors.size() * 4);
    ++reading_;
    auto* place = words_.data();
    for (const auto& [id, raw] : stat_.processors) {
        if (id >= hostProcessorsProcessorLimit) return std::nullopt;
        if (id >= byID_.size()) byID_.resize(id + 1);
        Known& known = byID_[id];
        const ProcStat::Ticks now = known.steady.update(raw);
        const bool wasThere = known.reading + 1 == reading_;
        const auto before = words(wasThere ? known.last : now);
        const auto after = words(now);
        for (std::size_t i = 0; i < after.size(); ++i)
            *place++ += after[i] - before[i];
        known.last = now;
        known.reading = reading_;
    }
    return ProcessorArray{static_cast<std::uint32_t>(stat_.processors.size()), words_.data(),
                          static_cast<std::uint32_t>(words_.size())};
}

void LinuxHostProcessors::releaseArray(const std::uint32_t*, std::size_t) {}

}  // namespace vantor
