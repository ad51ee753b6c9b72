#pragma once

#include <atomic>
#include <chrono>

namespace vantor {

/// A monotonic clock that only moves when it is wound. Any thread may read it.
class FakeClock {
  public:
    std::chrono::nanoseconds now() const { return std::chrono::nanoseconds{now_.load()}; }
    double seconds() const { return std::chrono::duration<double>(now()).count(); }

    void wind(std::chrono::nanoseconds by) { now_ += by.count(); }
    void setNow(std::chrono::nanoseconds now) { now_ = now.count(); }

  private:
    // Not zero: code that takes an uptime of 0 for "never" must not work by luck.
    std::atomic<std::chrono::nanoseconds::rep> now_{
        std::chrono::nanoseconds{std::chrono::seconds{1}}.count()};
};

}  // namespace vantor
