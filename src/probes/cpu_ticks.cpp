#include "probes/cpu_ticks.h"

#include <cstdlib>

#include "model/checked.h"

namespace vantor {

namespace {

constexpr std::uint64_t wrap = std::uint64_t{1} << 32;

std::uint64_t growth(std::uint32_t previous, std::uint32_t current) {
    return current < previous ? current + wrap - previous : std::uint64_t{current} - previous;
}

std::uint64_t addOrStop(std::uint64_t a, std::uint64_t b) {
    const auto sum = checkedSum(a, b);
    if (!sum) std::abort();
    return *sum;
}

double clampShare(double share) {
    return share <= 0 ? 0 : share > 1 ? 1 : share;
}

}  // namespace

TickDelta TickDelta::between(const TickSet& previous, const TickSet& current) {
    return {growth(previous.user, current.user), growth(previous.system, current.system),
            growth(previous.idle, current.idle), growth(previous.nice, current.nice)};
}

std::uint64_t TickDelta::sum() const {
    return addOrStop(addOrStop(user, system), addOrStop(idle, nice));
}

Percentages Percentages::of(const TickDelta& delta) {
    const auto sum = static_cast<double>(delta.sum());
    const double user = static_cast<double>(delta.user + delta.nice) / sum;
    const double system = static_cast<double>(delta.system) / sum;
    const double idle = static_cast<double>(delta.idle) / sum;
    return {clampShare(user + system), clampShare(user), clampShare(system), clampShare(idle)};
}

double busyShare(const TickDelta& delta) {
    const std::uint64_t all = delta.sum();
    if (all == 0) return 0;
    return clampShare(static_cast<double>(delta.user + delta.system + delta.nice) /
                      static_cast<double>(all));
}

}  // namespace vantor
