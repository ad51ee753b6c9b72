#pragma once

#include <functional>
#include <memory>

#include "platform/serial_queue.h"

namespace vantor {

/// Makes serial queues of the system's own dispatcher, of utility quality of service. A queue has
/// a thread of the system's pool while it has work, and none otherwise; one whose task hangs keeps
/// its own alone.
class MacQueueFactory : public BackgroundQueueFactory {
  public:
    /// Runs one task, with whatever has to be around it on the thread. Called on many threads.
    using Surroundings = std::function<void(Task& task)>;

    explicit MacQueueFactory(Surroundings surroundings = {});
    ~MacQueueFactory() override;

    std::unique_ptr<SerialQueue> makeQueue(std::string_view label) override;
    bool waitForThreads(std::chrono::milliseconds limit) override;

  private:
    struct ThreadCounter;
    class Queue;

    std::shared_ptr<const Surroundings> surroundings_;
    std::shared_ptr<ThreadCounter> threadCounter_;
};

}  // namespace vantor
