#include "sequences/processor_oracle.h"

#include <algorithm>
#include <utility>

#include "sequences/disagreement.h"

namespace vantor {

namespace {

using Growth = std::array<long double, 4>;

/// A counter that is lower than before has gone round once.
Growth growthBetween(const ProcessorOracle::Ticks& from, const ProcessorOracle::Ticks& to) {
    Growth growth{};
    for (std::size_t i = 0; i < growth.size(); ++i) {
        growth[i] = static_cast<long double>(to[i]) - from[i];
        if (growth[i] < 0) growth[i] += 4294967296.0L;
    }
    return growth;
}

long double sumOf(const Growth& growth) {
    return growth[0] + growth[1] + growth[2] + growth[3];
}

}  // namespace

void ProcessorOracle::hear(Reading reading) {
    history_.push_back({std::move(reading), firstSinceReset_});
}

/// The latest reading before that one, and since the reset, that had totals (and processors).
std::optional<std::size_t> ProcessorOracle::before(std::size_t place, bool withCores) const {
    const std::size_t first = history_[place].first;
    while (place > first) {
        const Reading& reading = history_[--place].reading;
        if (reading.total && (reading.cores || !withCores)) return place;
    }
    return std::nullopt;
}

/// Whether time has passed since the reading before it.
bool ProcessorOracle::isReport(std::size_t place) const {
    if (!history_[place].reading.total) return false;
    const auto earlier = before(place, false);
    return earlier && sumOf(growthBetween(*history_[*earlier].reading.total,
                                          *history_[place].reading.total)) > 0;
}

/// The latest shares that are still of the same processors: those of the latest report that had
/// processors, unless their number has changed since.
ProcessorOracle::Shares ProcessorOracle::coreShares(std::size_t place) const {
    std::optional<std::size_t> later = place;
    if (!history_[place].reading.cores) later = before(place, true);
    for (; later; later = before(*later, true)) {
        const auto earlier = before(*later, true);
        if (!earlier) return {};
        const auto& to = *history_[*later].reading.cores;
        const auto& from = *history_[*earlier].reading.cores;
        if (to.size() != from.size()) return {};
        if (!isReport(*later)) continue;
        Shares shares;
        for (std::size_t i = 0; i < to.size(); ++i) {
            const Growth growth = growthBetween(from[i], to[i]);
            const long double all = sumOf(growth);
            shares.push_back(all == 0 ? 0 : (all - growth[2]) / all);
        }
        return shares;
    }
    return {};
}

/// Asked for at reports only, and kept whatever else is forgotten.
std::vector<double> ProcessorOracle::lastLoad() const {
    for (std::size_t place = history_.size(); place > 0; --place) {
        const auto& load = history_[place - 1].reading.load;
        if (load && isReport(place - 1)) return *load;
    }
    return {};
}

std::optional<std::string> ProcessorOracle::judge(const CPUStats* actual) const {
    const std::size_t last = history_.size() - 1;
    Disagreement disagreement;
    disagreement.expectSame("there is a record", actual != nullptr, isReport(last));
    if (disagreement.text() || !actual) return disagreement.text();

    const Reading& now = history_[last].reading;
    const Growth growth = growthBetween(*history_[*before(last, false)].reading.total, *now.total);
    const long double all = sumOf(growth);
    disagreement.expectClose("user", actual->userUsage, (growth[0] + growth[3]) / all);
    disagreement.expectClose("system", actual->systemUsage, growth[1] / all);
    disagreement.expectClose("idle", actual->idleUsage, growth[2] / all);
    disagreement.expectClose("total", actual->totalUsage, (all - growth[2]) / all);

    const Shares shares = coreShares(last);
    disagreement.expectSame("processors", actual->perCoreUsage.size(), shares.size());
    for (std::size_t i = 0; i < std::min(shares.size(), actual->perCoreUsage.size()); ++i) {
        disagreement.expectClose("busy share", actual->perCoreUsage[i], shares[i],
                                 "processor " + std::to_string(i));
    }
    const std::vector<double> load = lastLoad();
    disagreement.expectSame("load averages", actual->loadAverage.size(), load.size());
    disagreement.expectSame("load averages are the last ones", actual->loadAverage == load, true);
    disagreement.expectSame("temperature", actual->temperatureCelsius, now.temperature);
    return disagreement.text();
}

}  // namespace vantor
