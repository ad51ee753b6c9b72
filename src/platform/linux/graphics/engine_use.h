#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/graphics/drm_fdinfo.h"

namespace vantor {

/// How busy the engine classes of one device were between two looks, all clients together.
class EngineShares {
  public:
    void clear();

    /// A client was looked at for the second time at least, so that something is known.
    void count() { isMeasured_ = true; }
    void add(std::string_view engine, double share);

    /// The share of the busiest class, 0 to 1; absent when no client was measured.
    std::optional<double> busiest() const;

  private:
    std::vector<std::pair<std::string, double>> shares_;
    bool isMeasured_ = false;
};

/// The engine counters of one client as they were at the last look. What it did before the first
/// one, or before its counters began anew, is not counted.
class ClientEngines {
  public:
    /// Adds what the client has done since the last look. `now` is in seconds.
    void measure(const DRMFdInfo& info, double now, EngineShares& shares);

    /// The same, when its text has not changed.
    void stayIdle(double now, EngineShares& shares);

  private:
    struct Counters {
        std::string name;
        std::optional<std::uint64_t> busyNanoseconds;
        std::optional<std::uint64_t> cycles;
        std::optional<std::uint64_t> totalCycles;
    };

    static double share(const Counters& before, const DRMEngine& engine, double elapsed);

    std::vector<Counters> counters_;
    std::optional<double> lookedAt_;
};

}  // namespace vantor
