#pragma once

#include <chrono>
#include <memory>
#include <utility>

#include "platform/main_loop.h"

namespace vantor {

/// The handle of an activity on the main thread that posts, sleeps and can be cancelled. A
/// cancelled one never runs again, not even a step that is already posted. Main thread.
class MainTask : public std::enable_shared_from_this<MainTask> {
  public:
    explicit MainTask(std::shared_ptr<MainLoop> loop) : loop_(std::move(loop)) {}

    bool isCancelled() const { return cancelled_; }

    void cancel() {
        cancelled_ = true;
        // Letting go of the loop ends the circle of a step that is posted there and never runs.
        const auto loop = std::exchange(loop_, nullptr);
        if (loop && timer_ != 0) loop->cancel(std::exchange(timer_, 0));
    }

    /// Runs `step` in the next turn of the main loop, unless cancelled.
    void post(Task step) {
        if (cancelled_) return;
        loop_->post([self = shared_from_this(), step = std::move(step)]() mutable {
            if (!self->cancelled_) step();
        });
    }

    /// Runs `step` after `delay`, unless cancelled.
    void sleep(std::chrono::nanoseconds delay, Task step) {
        if (cancelled_) return;
        timer_ =
            loop_->runAfter(delay, [self = shared_from_this(), step = std::move(step)]() mutable {
                self->timer_ = 0;
                if (!self->cancelled_) step();
            });
    }

  private:
    std::shared_ptr<MainLoop> loop_;
    MainLoop::TimerID timer_ = 0;
    bool cancelled_ = false;
};

/// Cancels and forgets a task, if there is one.
inline void cancelTask(std::shared_ptr<MainTask>& task) {
    if (const auto held = std::exchange(task, nullptr)) held->cancel();
}

}  // namespace vantor
