#include "support/threaded_main_loop.h"

#include <algorithm>

namespace vantor {

void ThreadedMainLoop::post(Task task) {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(task));
    changed_.notify_one();
}

MainLoop::TimerID ThreadedMainLoop::runAfter(std::chrono::nanoseconds delay, Task task) {
    const std::lock_guard lock(mutex_);
    const TimerID timer = ++lastTimer_;
    const auto due = Clock::now() + std::max(delay, std::chrono::nanoseconds::zero());
    timers_.emplace(Key{due, timer}, std::move(task));
    changed_.notify_one();
    return timer;
}

void ThreadedMainLoop::cancel(TimerID timer) {
    Task dropped;  // ends after the lock: what it owns may call back into this loop
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(timers_.begin(), timers_.end(),
                                    [&](const auto& entry) { return entry.first.second == timer; });
    if (found == timers_.end()) return;
    dropped = std::move(found->second);
    timers_.erase(found);
}

bool ThreadedMainLoop::takeDue(Task& task) {
    const auto first = timers_.begin();
    if (first == timers_.end() || first->first.first > Clock::now()) return false;
    task = std::move(first->second);
    timers_.erase(first);
    return true;
}

void ThreadedMainLoop::run() {
    std::vector<Task> batch;
    std::unique_lock lock(mutex_);
    while (!stopped_) {
        // In turn, so that neither timers nor posted tasks that make more of their kind can keep
        // the others waiting for ever. A timer is taken only now that it is its turn: a posted task
        // may have cancelled it.
        const bool hasPosted = !posted_.empty();
        if (hasPosted) {
            batch.swap(posted_);
            lock.unlock();
            for (Task& task : batch) {
                if (stopped_) break;
                task();
            }
            batch.clear();
            lock.lock();
        }
        if (stopped_) break;
        if (Task due; takeDue(due)) {
            lock.unlock();
            due();
            due = Task{};
            lock.lock();
        } else if (hasPosted) {
            continue;  // time has passed, and more may have been posted
        } else if (timers_.empty()) {
            changed_.wait(lock);
        } else {
            const auto next = timers_.begin()->first.first;  // a copy: the entry may go meanwhile
            changed_.wait_until(lock, next);
        }
    }
}

void ThreadedMainLoop::stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    changed_.notify_one();
}

}  // namespace vantor
