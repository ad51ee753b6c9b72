#pragma once

#include <tuple>
#include <vector>

#include "model/field.h"
#include "model/process_stats.h"

namespace vantor {

/// What one pass over the processes found.
struct ProcessSample {
    std::vector<ProcessStats> all;             ///< in the order of the kernel's listing
    std::vector<ProcessStats> sortedByCPU;     ///< at most 18, busiest first, then lower pid first
    std::vector<ProcessStats> sortedByMemory;  ///< at most 18, largest first, then lower pid first

    bool operator==(const ProcessSample&) const = default;

    /// Three empty lists, as after a failed listing.
    static const ProcessSample& empty();
};

template <>
inline constexpr auto fieldsOf<ProcessSample> =
    std::tuple{Field{"all", &ProcessSample::all}, Field{"sortedByCPU", &ProcessSample::sortedByCPU},
               Field{"sortedByMemory", &ProcessSample::sortedByMemory}};

}  // namespace vantor
