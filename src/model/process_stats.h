#pragma once

#include <cstdint>
#include <tuple>

#include "model/field.h"
#include "model/shared_text.h"

namespace vantor {

/// One process, identified by its pid.
struct ProcessStats {
    std::int32_t pid = 0;   ///< the record's identity
    SharedText name;        ///< last component of the executable's path, else the kernel's name
    SharedText command;     ///< full path of the executable when known, else the name
    double cpuPercent = 0;  ///< 100 is one processor fully busy; may exceed 100, never negative
    std::uint64_t residentMemoryBytes = 0;

    bool operator==(const ProcessStats&) const = default;

    /// Identifies this row across refreshes; equality compares everything.
    std::int32_t identity() const { return pid; }
};

template <>
inline constexpr auto fieldsOf<ProcessStats> = std::tuple{
    Field{"pid", &ProcessStats::pid}, Field{"name", &ProcessStats::name},
    Field{"command", &ProcessStats::command}, Field{"cpuPercent", &ProcessStats::cpuPercent},
    Field{"residentMemoryBytes", &ProcessStats::residentMemoryBytes}};

}  // namespace vantor
