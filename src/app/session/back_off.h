#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

namespace vantor {

/// How long to wait before the next of several attempts: each time twice as long, up to a minute.
class BackOff {
  public:
    static constexpr std::chrono::milliseconds first{500};
    static constexpr std::chrono::milliseconds longest{60'000};

    std::chrono::milliseconds next() { return std::exchange(next_, std::min(2 * next_, longest)); }

  private:
    std::chrono::milliseconds next_ = first;
};

}  // namespace vantor
