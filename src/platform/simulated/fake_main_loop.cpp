#include "platform/simulated/fake_main_loop.h"

#include <algorithm>

namespace vantor {

void FakeMainLoop::post(Task task) {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(task));
}

MainLoop::TimerID FakeMainLoop::runAfter(std::chrono::nanoseconds delay, Task task) {
    const TimerID timer = ++lastTimer_;
    const auto due = clock_->now() + std::max(delay, std::chrono::nanoseconds::zero());
    timers_.emplace(Key{due, timer}, std::move(task));
    return timer;
}

void FakeMainLoop::cancel(TimerID timer) {
    const auto found = std::find_if(timers_.begin(), timers_.end(),
                                    [&](const auto& entry) { return entry.first.second == timer; });
    if (found == timers_.end()) return;
    const Task dropped = std::move(found->second);  // ends after the entry is gone
    timers_.erase(found);
}

std::size_t FakeMainLoop::runPosted() {
    std::deque<Task> batch;
    {
        const std::lock_guard lock(mutex_);
        batch.swap(posted_);
    }
    for (Task& task : batch)
        task();
    return batch.size();
}

bool FakeMainLoop::runDueTimer() {
    const auto first = timers_.begin();
    if (first == timers_.end() || first->first.first > clock_->now()) return false;
    Task task = std::move(first->second);
    timers_.erase(first);
    task();
    return true;
}

std::chrono::nanoseconds FakeMainLoop::nextDue() const {
    return timers_.empty() ? std::chrono::nanoseconds::max() : timers_.begin()->first.first;
}

}  // namespace vantor
