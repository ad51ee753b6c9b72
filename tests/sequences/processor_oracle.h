#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/cpu_stats.h"

namespace vantor {

/// Works out processor shares from everything that the kernel ever said.
class ProcessorOracle {
  public:
    /// User, system, idle, nice.
    using Ticks = std::array<std::uint32_t, 4>;

    /// What the kernel said at one reading.
    struct Reading {
        std::optional<Ticks> total;  ///< absent: the call failed
        std::optional<std::vector<Ticks>> cores;
        std::optional<std::vector<double>> load;  ///< absent: none, or not to be believed
        std::optional<double> temperature;
    };

    /// The next reading has nothing before it to be compared with.
    void forget() { firstSinceReset_ = history_.size(); }
    void hear(Reading reading);

    /// What is wrong with the reader's answer to the last reading.
    std::optional<std::string> judge(const CPUStats* actual) const;

  private:
    struct Entry {
        Reading reading;
        std::size_t first;  ///< the first one since the reader was reset
    };
    using Shares = std::vector<long double>;

    std::optional<std::size_t> before(std::size_t place, bool withCores) const;
    bool isReport(std::size_t place) const;
    Shares coreShares(std::size_t place) const;
    std::vector<double> lastLoad() const;

    std::vector<Entry> history_;
    std::size_t firstSinceReset_ = 0;
};

}  // namespace vantor
