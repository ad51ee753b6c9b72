#pragma once

#include <cstdint>

namespace vantor {

/// Cumulative ticks in the kernel's order of states; each counter wraps at 32 bits.
struct TickSet {
    std::uint32_t user = 0;
    std::uint32_t system = 0;
    std::uint32_t idle = 0;
    std::uint32_t nice = 0;

    bool operator==(const TickSet&) const = default;
};

/// What the counters grew by between two readings.
struct TickDelta {
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;

    bool operator==(const TickDelta&) const = default;

    /// A counter below its previous value has wrapped once.
    static TickDelta between(const TickSet& previous, const TickSet& current);

    /// All four together. A sum past 64 bits cannot come from 32-bit counters: it ends the program.
    std::uint64_t sum() const;
};

/// The shares of one interval, each 0 to 1.
struct Percentages {
    double total = 0;
    double user = 0;  ///< nice time is user time
    double system = 0;
    double idle = 0;

    bool operator==(const Percentages&) const = default;

    /// The sum of `delta` must not be 0.
    static Percentages of(const TickDelta& delta);
};

/// The busy share of one processor; 0 when no tick passed.
double busyShare(const TickDelta& delta);

}  // namespace vantor
