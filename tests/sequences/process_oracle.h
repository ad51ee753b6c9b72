#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/process_sample.h"

namespace vantor {

/// Works out the processes' shares from everything that the kernel ever said. Its books are kept by
/// birth, which no two processes share, and not by identifier.
class ProcessOracle {
  public:
    /// A process that could be read.
    struct Process {
        std::int32_t pid = 0;
        std::uint64_t birth = 0;
        std::uint64_t spent = 0;  ///< processor time in native units
        std::uint64_t resident = 0;
        std::string path;
    };

    /// One reading; without processes, nothing could be listed.
    struct Reading {
        double uptime = 0;
        std::vector<Process> processes;  ///< in the order of the listing
    };

    explicit ProcessOracle(long double unitsPerSecond) : unitsPerSecond_(unitsPerSecond) {}

    /// The next reading has nothing before it to be compared with.
    void forget() { firstSinceReset_ = history_.size(); }
    void hear(Reading reading);

    /// What is wrong with the reader's answer to the last reading.
    std::optional<std::string> judge(const ProcessSample& actual) const;

  private:
    const Reading* baseline() const;

    long double unitsPerSecond_;
    std::vector<Reading> history_;
    std::map<std::uint64_t, std::set<std::string>> paths_;  // that each birth ever had
    std::size_t firstSinceReset_ = 0;
};

}  // namespace vantor
