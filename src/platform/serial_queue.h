#pragma once

#include <memory>
#include <string_view>

#include "platform/unique_function.h"

namespace vantor {

/// One background thread of utility priority that runs its tasks one after the other, in order.
///
/// submit may be called from any thread and returns at once. Destroying the queue never waits:
/// what was submitted still runs, and a task that hangs for ever only costs its own thread.
class SerialQueue {
  public:
    virtual ~SerialQueue() = default;
    virtual void submit(Task task) = 0;
};

/// Makes queues. The label names the thread for debuggers and has no other meaning.
class SerialQueueFactory {
  public:
    virtual ~SerialQueueFactory() = default;
    virtual std::unique_ptr<SerialQueue> makeQueue(std::string_view label) = 0;
};

}  // namespace vantor
