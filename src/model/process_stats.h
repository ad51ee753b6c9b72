#pragma once

#include <cstdint>
#include <string>

namespace vantor {

/// One process, identified by its pid.
struct ProcessStats {
    std::int32_t pid = 0;   ///< the record's identity
    std::string name;       ///< last component of the executable's path, else the kernel's name
    std::string command;    ///< full path of the executable when known, else the name
    double cpuPercent = 0;  ///< 100 is one processor fully busy; may exceed 100, never negative
    std::uint64_t residentMemoryBytes = 0;

    bool operator==(const ProcessStats&) const = default;

    /// What tells this row from the others across refreshes; equality compares everything.
    std::int32_t identity() const { return pid; }
};

}  // namespace vantor
