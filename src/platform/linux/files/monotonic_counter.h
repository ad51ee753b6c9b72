#pragma once

#include <cstdint>

namespace vantor {

/// Makes a counter that only grows out of a kernel counter that does not quite.
///
/// idle and iowait step back by a few ticks on real kernels (they are corrected afterwards), and
/// the reader would take any step back for a 32-bit wrap: 100 % out of nothing. So a small step
/// back holds the highest value seen until the counter has caught up. A processor that was taken
/// offline and back may start its idle time again from zero: waiting for that to catch up would
/// show it busy for hours, so a large step back is a new start, from which growth is added on.
class MonotonicCounter {
  public:
    /// Ten seconds of one processor at the usual 100 ticks; corrections are a few ticks.
    static constexpr std::uint64_t restartThreshold = 1000;

    std::uint64_t update(std::uint64_t raw) {
        if (restartsAt(raw)) return restart(raw);
        if (raw > highest_) highest_ = raw;
        return carried_ + highest_;
    }

    bool restartsAt(std::uint64_t raw) const {
        return raw < highest_ && highest_ - raw > restartThreshold;
    }

    /// Holds the value and counts on from `raw`, wherever that is.
    std::uint64_t restart(std::uint64_t raw) {
        carried_ += highest_ - raw;  // modulo 2^64, like the sum
        highest_ = raw;
        return carried_ + highest_;
    }

  private:
    std::uint64_t highest_ = 0;
    std::uint64_t carried_ = 0;  ///< what the starts so far have lost
};

}  // namespace vantor
