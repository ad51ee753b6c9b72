#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/serial_queue.h"

namespace vantor {

/// Makes queues that run on a thread of their own, started by the first task.
///
/// The threads are detached: a probe stuck in the kernel cannot be interrupted, and a program that
/// joined it could never quit. What a task needs it must therefore own.
class ThreadedSerialQueueFactory : public BackgroundQueueFactory {
  public:
    /// Called first thing on each new thread, to name it and lower its priority.
    using ThreadPriority = std::function<void(const std::string& label)>;

    explicit ThreadedSerialQueueFactory(ThreadPriority priority = {});
    ~ThreadedSerialQueueFactory() override;

    std::unique_ptr<SerialQueue> makeQueue(std::string_view label) override;

    bool waitForThreads(std::chrono::milliseconds limit) override;

  private:
    struct ThreadCounter;
    class Queue;

    ThreadPriority priority_;
    std::shared_ptr<ThreadCounter> threadCounter_;
};

}  // namespace vantor
