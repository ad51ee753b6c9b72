#pragma once

#include <chrono>
#include <memory>
#include <string_view>

#include "platform/unique_function.h"

namespace vantor {

/// Runs its tasks one after the other, in order, in the background with utility priority.
///
/// submit may be called from any thread and returns at once. Destroying the queue never waits:
/// what was submitted still runs, and a task that hangs for ever only costs its own thread.
class SerialQueue {
  public:
    virtual ~SerialQueue() = default;
    virtual void submit(Task task) = 0;
};

/// Makes queues. The label names the queue for debuggers and has no other meaning.
class SerialQueueFactory {
  public:
    virtual ~SerialQueueFactory() = default;
    virtual std::unique_ptr<SerialQueue> makeQueue(std::string_view label) = 0;
};

/// Makes queues that work beside the program's own threads.
class BackgroundQueueFactory : public SerialQueueFactory {
  public:
    /// Waits until no queue has work or a thread any more, for which all must have been destroyed;
    /// false when that takes longer. For orderly ends; nothing depends on it.
    virtual bool waitForThreads(std::chrono::milliseconds limit) = 0;
};

}  // namespace vantor
