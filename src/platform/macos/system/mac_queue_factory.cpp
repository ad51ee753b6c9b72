#include "platform/macos/system/mac_queue_factory.h"

#include <dispatch/dispatch.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <utility>

namespace vantor {

struct MacQueueFactory::ThreadCounter {
    std::mutex mutex;
    std::condition_variable changed;
    int queues = 0;

    void add(int more) {
        const std::lock_guard lock(mutex);
        queues += more;
        changed.notify_all();
    }
};

namespace {

struct WorkItem {
    Task task;
    std::shared_ptr<const MacQueueFactory::Surroundings> surroundings;
};

void runItem(void* context) {
    const std::unique_ptr<WorkItem> item(static_cast<WorkItem*>(context));
    if (*item->surroundings) {
        (*item->surroundings)(item->task);
    } else {
        item->task();
    }
}

}  // namespace

class MacQueueFactory::Queue : public SerialQueue {
  public:
    Queue(const std::string& label, std::shared_ptr<const Surroundings> surroundings,
          const std::shared_ptr<ThreadCounter>& counter)
        : surroundings_(std::move(surroundings)) {
        dispatch_queue_attr_t attributes =
            ::dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0);
        queue_ = ::dispatch_queue_create(label.c_str(), attributes);
        auto counted = std::make_unique<std::shared_ptr<ThreadCounter>>(counter);
        counter->add(1);
        // The dispatcher keeps a queue that was released until its last task is over.
        ::dispatch_set_context(queue_, counted.release());
        ::dispatch_set_finalizer_f(queue_, [](void* context) {
            const std::unique_ptr<std::shared_ptr<ThreadCounter>> ended(
                static_cast<std::shared_ptr<ThreadCounter>*>(context));
            (*ended)->add(-1);
        });
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    ~Queue() override { ::dispatch_release(queue_); }

    void submit(Task task) override {
        auto item = std::make_unique<WorkItem>(WorkItem{std::move(task), surroundings_});
        ::dispatch_async_f(queue_, item.release(), runItem);
    }

  private:
    std::shared_ptr<const Surroundings> surroundings_;
    dispatch_queue_t queue_ = nullptr;
};

MacQueueFactory::MacQueueFactory(Surroundings surroundings)
    : surroundings_(std::make_shared<const Surroundings>(std::move(surroundings))),
      threadCounter_(std::make_shared<ThreadCounter>()) {}

MacQueueFactory::~MacQueueFactory() = default;

std::unique_ptr<SerialQueue> MacQueueFactory::makeQueue(std::string_view label) {
    return std::make_unique<Queue>(std::string(label), surroundings_, threadCounter_);
}

bool MacQueueFactory::waitForThreads(std::chrono::milliseconds limit) {
    std::unique_lock lock(threadCounter_->mutex);
    return threadCounter_->changed.wait_for(lock, limit,
                                            [&] { return threadCounter_->queues == 0; });
}

}  // namespace vantor
