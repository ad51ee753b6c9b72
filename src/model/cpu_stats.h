#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/field.h"

namespace vantor {

/// Processor usage over one interval. Usages are fractions 0 to 1 of all processors' time.
struct CPUStats {
    std::string model;                 ///< brand string of the processor
    double totalUsage = 0;             ///< userUsage + systemUsage
    double userUsage = 0;              ///< user time, nice included
    double systemUsage = 0;            ///< kernel time
    double idleUsage = 0;              ///< idle time
    std::vector<double> perCoreUsage;  ///< busy share per logical processor in the kernel's order;
                                       ///< empty while not yet known
    std::int64_t logicalCoreCount = 0;
    std::int64_t physicalCoreCount = 0;
    std::vector<double> loadAverage;                  ///< up to three: over 1, 5 and 15 minutes
    std::optional<std::uint64_t> nominalFrequencyHz;  ///< absent where the kernel publishes none
    std::optional<double> temperatureCelsius;         ///< absent when no sensor answered

    bool operator==(const CPUStats&) const = default;

    /// The placeholder until the first reading; deliberately an idle processor.
    static const CPUStats& empty();
};

template <>
inline constexpr auto fieldsOf<CPUStats> =
    std::tuple{Field{"model", &CPUStats::model},
               Field{"totalUsage", &CPUStats::totalUsage},
               Field{"userUsage", &CPUStats::userUsage},
               Field{"systemUsage", &CPUStats::systemUsage},
               Field{"idleUsage", &CPUStats::idleUsage},
               Field{"perCoreUsage", &CPUStats::perCoreUsage},
               Field{"logicalCoreCount", &CPUStats::logicalCoreCount},
               Field{"physicalCoreCount", &CPUStats::physicalCoreCount},
               Field{"loadAverage", &CPUStats::loadAverage},
               Field{"nominalFrequencyHz", &CPUStats::nominalFrequencyHz},
               Field{"temperatureCelsius", &CPUStats::temperatureCelsius}};

}  // namespace vantor
