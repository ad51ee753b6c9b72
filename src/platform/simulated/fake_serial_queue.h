#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/serial_queue.h"

namespace vantor {

/// Queues whose tasks run on the caller's thread when a test runs them, label by label.
/// Single-threaded.
///
/// The waiting tasks belong to the factory: like those of a real queue, they outlive it.
class FakeSerialQueueFactory : public SerialQueueFactory {
  public:
    FakeSerialQueueFactory();
    ~FakeSerialQueueFactory() override;

    std::unique_ptr<SerialQueue> makeQueue(std::string_view label) override;

    /// The labels in the order in which their queues were made.
    const std::vector<std::string>& labels() const;

    std::size_t waiting(std::string_view label) const;

    /// Runs the oldest waiting task of that queue; false when there is none.
    bool runNext(std::string_view label);

    /// Runs everything that waits now, queue by queue. Returns how many tasks ran.
    std::size_t runWaiting();

  private:
    struct Shared;
    class Queue;
    std::shared_ptr<Shared> shared_;
};

}  // namespace vantor
