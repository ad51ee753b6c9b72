#pragma once

#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/main_loop.h"

namespace vantor {

/// A main loop without a toolkit, for headless programs and for tests with real threads: the thread
/// that calls run() is the main thread.
class ThreadedMainLoop : public MainLoop {
  public:
    void post(Task task) override;
    TimerID runAfter(std::chrono::nanoseconds delay, Task task) override;
    void cancel(TimerID timer) override;

    /// Runs tasks until stop() is called; what is still waiting then is dropped with the loop.
    void run();

    /// Any thread.
    void stop();

  private:
    using Clock = std::chrono::steady_clock;
    using Key = std::pair<Clock::time_point, TimerID>;

    bool takeDue(Task& task);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Task> posted_;
    std::map<Key, Task> timers_;
    TimerID lastTimer_ = 0;
    std::atomic<bool> stopped_ = false;  // written under the mutex, read also without it
};

}  // namespace vantor
