#pragma once

#include <span>

namespace vantor {

/// The load averages over 1, 5 and 15 minutes; the shape of getloadavg. One thread at a time.
/// Linux: /proc/loadavg.
class LoadAverages {
  public:
    virtual ~LoadAverages() = default;

    /// Fills the front of `averages` in that order; gives how many it filled, below 1 on failure.
    virtual int getloadavg(std::span<double> averages) = 0;
};

}  // namespace vantor
