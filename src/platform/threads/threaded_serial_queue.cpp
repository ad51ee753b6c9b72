#include "platform/threads/threaded_serial_queue.h"

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace vantor {

struct ThreadedSerialQueueFactory::ThreadCounter {
    std::mutex mutex;
    std::condition_variable changed;
    int threads = 0;

    void add(int more) {
        const std::lock_guard lock(mutex);
        threads += more;
        changed.notify_all();
    }
};

class ThreadedSerialQueueFactory::Queue : public SerialQueue {
  public:
    Queue(std::string label, ThreadPriority priority, std::shared_ptr<ThreadCounter> counter)
        : shared_(std::make_shared<Shared>()),
          label_(std::move(label)),
          priority_(std::move(priority)),
          threadCounter_(std::move(counter)) {}
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    ~Queue() override {
        const std::lock_guard lock(shared_->mutex);
        shared_->closed = true;
        shared_->changed.notify_one();
    }

    void submit(Task task) override {
        {
            const std::lock_guard lock(shared_->mutex);
            shared_->waiting.push_back(std::move(task));
            if (!shared_->started) shared_->started = start();
        }
        // Not under the lock, which the thread would wake up only to wait for.
        shared_->changed.notify_one();
    }

  private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        std::vector<Task> waiting;
        bool started = false;
        bool closed = false;
    };

    /// False when the system has no thread to give: what waits then waits for the next submission,
    /// which tries again.
    bool start() {
        threadCounter_->add(1);
        try {
            std::thread([shared = shared_, counter = threadCounter_, label = label_,
                         priority = priority_] {
                if (priority) priority(label);
                run(*shared);
                counter->add(-1);
            }).detach();
        } catch (const std::system_error&) {
            threadCounter_->add(-1);
            return false;
        }
        return true;
    }

    static void run(Shared& shared) {
        std::vector<Task> batch;  // trades places with the list of waiting tasks: no allocation
        std::unique_lock lock(shared.mutex);
        while (true) {
            shared.changed.wait(lock, [&] { return shared.closed || !shared.waiting.empty(); });
            if (shared.waiting.empty()) return;
            batch.swap(shared.waiting);
            lock.unlock();
            for (Task& task : batch) {
                task();
                task = Task{};  // whatever it owned goes before the next one runs
            }
            batch.clear();
            lock.lock();
        }
    }

    std::shared_ptr<Shared> shared_;
    std::string label_;
    ThreadPriority priority_;
    std::shared_ptr<ThreadCounter> threadCounter_;
};

ThreadedSerialQueueFactory::ThreadedSerialQueueFactory(ThreadPriority priority)
    : priority_(std::move(priority)), threadCounter_(std::make_shared<ThreadCounter>()) {}

ThreadedSerialQueueFactory::~ThreadedSerialQueueFactory() = default;

std::unique_ptr<SerialQueue> ThreadedSerialQueueFactory::makeQueue(std::string_view label) {
    return std::make_unique<Queue>(std::string(label), priority_, threadCounter_);
}

bool ThreadedSerialQueueFactory::waitForThreads(std::chrono::milliseconds limit) {
    std::unique_lock lock(threadCounter_->mutex);
    return threadCounter_->changed.wait_for(lock, limit,
                                            [&] { return threadCounter_->threads == 0; });
}

}  // namespace vantor
