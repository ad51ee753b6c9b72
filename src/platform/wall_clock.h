#pragma once

#include <chrono>

namespace vantor {

/// The date, for stamping snapshots; never for measuring. Any thread.
class WallClock {
  public:
    virtual ~WallClock() = default;
    virtual std::chrono::system_clock::time_point now() const = 0;
};

}  // namespace vantor
