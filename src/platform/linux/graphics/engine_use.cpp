#include "platform/linux/graphics/engine_use.h"

#include <algorithm>

#include "platform/time_units.h"

namespace vantor {

namespace {

/// Of a counter that stepped back, as one of another client under the same number does, nothing.
double growth(std::uint64_t before, std::uint64_t now) {
    return now > before ? static_cast<double>(now - before) : 0;
}

}  // namespace

void EngineShares::clear() {
    shares_.clear();
    isMeasured_ = false;
}

void EngineShares::add(std::string_view engine, double share) {
    for (auto& [name, sum] : shares_) {
        if (name != engine) continue;
        sum += share;
        return;
    }
    shares_.emplace_back(engine, share);
}

std::optional<double> EngineShares::busiest() const {
    if (!isMeasured_) return std::nullopt;
    double busiest = 0;
    for (const auto& [name, sum] : shares_)
        busiest = std::max(busiest, sum);
    return std::min(busiest, 1.0);
}

double ClientEngines::share(const Counters& before, const DRMEngine& engine, double elapsed) {
    const auto capacity = static_cast<double>(engine.capacity);
    double share = 0;
    if (engine.busyNanoseconds && before.busyNanoseconds) {
        share = growth(*before.busyNanoseconds, *engine.busyNanoseconds) /
                (elapsed * static_cast<double>(nanosecondsPerSecond) * capacity);
    } else if (engine.cycles && engine.totalCycles && before.cycles && before.totalCycles) {
        const double total = growth(*before.totalCycles, *engine.totalCycles);
        if (total > 0) share = growth(*before.cycles, *engine.cycles) / (total * capacity);
    }
    // Some drivers book a long batch when it is over.
    return std::min(share, 1.0);
}

void ClientEngines::measure(const DRMFdInfo& info, double now, EngineShares& shares) {
    const double elapsed = lookedAt_ ? now - *lookedAt_ : 0;
    const auto engines = info.engines();
    if (elapsed > 0) {
        shares.count();
        for (const DRMEngine& engine : engines) {
            for (const Counters& before : counters_) {
                if (before.name != engine.name) continue;
                if (const double done = share(before, engine, elapsed); done > 0) {
                    shares.add(engine.name, done);
                }
            }
        }
    }
    counters_.resize(engines.size());
    for (std::size_t i = 0; i < engines.size(); ++i) {
        counters_[i].name = engines[i].name;
        counters_[i].busyNanoseconds = engines[i].busyNanoseconds;
        counters_[i].cycles = engines[i].cycles;
        counters_[i].totalCycles = engines[i].totalCycles;
    }
    lookedAt_ = now;
}

void ClientEngines::stayIdle(double now, EngineShares& shares) {
    if (lookedAt_ && now > *lookedAt_) shares.count();
    lookedAt_ = now;
}

}  // namespace vantor
