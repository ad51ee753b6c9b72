#pragma once

#include <chrono>
#include <memory>
#include <utility>

#include "platform/main_loop.h"

namespace vantor {

/// The handle of an activity on the main thread that posts, sleeps and can be cancelled: one step
/// at a time, each of which may ask for the next. A cancelled one never runs again, not even a step
/// that is already posted. Main thread.
class MainTask : public std::enable_shared_from_this<MainTask> {
  public:
    explicit MainTask(std::shared_ptr<MainLoop> loop) : loop_(std::move(loop)) {}

    bool isCancelled() const { return loop_ == nullptr; }

    void cancel() {
        // Resetting both breaks the cycle: the loop keeps the step, the step keeps this task.
        const auto loop = std::exchange(loop_, nullptr);
        const Task dropped = std::exchange(step_, Task{});
        if (loop && timer_ != 0) loop->cancel(std::exchange(timer_, 0));
    }

    /// Runs `step` in the next turn of the main loop, unless cancelled.
    void post(Task step) {
        if (isCancelled()) return;
        step_ = std::move(step);
        loop_->post([self = shared_from_this()] { self->runStep(); });
    }

    /// Runs `step` after `delay`, unless cancelled.
    void sleep(std::chrono::nanoseconds delay, Task step) {
        if (isCancelled()) return;
        step_ = std::move(step);
        timer_ = loop_->runAfter(delay, [self = shared_from_this()] { self->runStep(); });
    }

  private:
    void runStep() {
        timer_ = 0;
        if (isCancelled()) return;
        Task step = std::exchange(step_, Task{});
        if (step) step();
    }

    std::shared_ptr<MainLoop> loop_;  // none once cancelled
    Task step_;
    MainLoop::TimerID timer_ = 0;
};

/// Cancels and forgets a task, if there is one.
inline void cancelTask(std::shared_ptr<MainTask>& task) {
    if (const auto held = std::exchange(task, nullptr)) held->cancel();
}

}  // namespace vantor
