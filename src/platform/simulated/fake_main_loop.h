#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/main_loop.h"
#include "platform/simulated/fake_clock.h"

namespace vantor {

/// A main loop whose time is manual: tests of minutes take microseconds.
class FakeMainLoop : public MainLoop {
  public:
    explicit FakeMainLoop(std::shared_ptr<FakeClock> clock) : clock_(std::move(clock)) {}

    void post(Task task) override;
    TimerID runAfter(std::chrono::nanoseconds delay, Task task) override;
    void cancel(TimerID timer) override;

    /// Runs what is posted now, but not what that posts. Returns how many tasks ran.
    std::size_t runPosted();

    /// Runs the first timer that is due by now, if any.
    bool runDueTimer();

    /// When the next timer is due; the far future when there is none.
    std::chrono::nanoseconds nextDue() const;

    std::size_t timerCount() const { return timers_.size(); }

  private:
    using Key = std::pair<std::chrono::nanoseconds, TimerID>;

    std::shared_ptr<FakeClock> clock_;
    std::mutex mutex_;  // guards posted_ alone: post comes from any thread
    std::deque<Task> posted_;
    std::map<Key, Task> timers_;
    TimerID lastTimer_ = 0;
};

}  // namespace vantor
