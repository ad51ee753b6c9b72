#include "platform/macos/fake_dispatcher.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

struct FakeAttributes {
    dispatch_qos_class_t quality;
};

namespace {

struct World {
    std::mutex mutex;
    vantor::fake_dispatcher::Asked asked;
};

World& world() {
    static World world;
    return world;
}

}  // namespace

/// Belongs to its creator and to its thread; ends, as the true ones do, when it was released and
/// has nothing left to do.
struct FakeQueue {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::pair<dispatch_function_t, void*>> waiting;
    void* context = nullptr;
    dispatch_function_t finalizer = nullptr;
    bool isReleased = false;
    std::shared_ptr<FakeQueue> creatorsShare;  // until it is released

    void run() {
        std::unique_lock lock(mutex);
        while (true) {
            changed.wait(lock, [&] { return isReleased || !waiting.empty(); });
            if (waiting.empty()) break;
            const auto [work, item] = waiting.front();
            waiting.pop_front();
            lock.unlock();
            work(item);
            lock.lock();
        }
        lock.unlock();
        {
            const std::lock_guard worldLock(world().mutex);
            ++world().asked.ended;
        }
        if (context && finalizer) finalizer(context);
    }
};

dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(dispatch_queue_attr_t,
                                                              dispatch_qos_class_t quality, int) {
    static const FakeAttributes utility{QOS_CLASS_UTILITY};
    return quality == QOS_CLASS_UTILITY ? &utility : nullptr;
}

dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attributes) {
    {
        const std::lock_guard lock(world().mutex);
        ++world().asked.created;
        world().asked.labels.emplace_back(label);
        if (attributes) world().asked.quality = attributes->quality;
    }
    const auto queue = std::make_shared<FakeQueue>();
    queue->creatorsShare = queue;
    std::thread([queue] { queue->run(); }).detach();
    return queue.get();
}

void dispatch_set_context(dispatch_queue_t queue, void* context) {
    const std::lock_guard lock(queue->mutex);
    queue->context = context;
}

void dispatch_set_finalizer_f(dispatch_queue_t queue, dispatch_function_t finalizer) {
    const std::lock_guard lock(queue->mutex);
    queue->finalizer = finalizer;
}

void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
    const std::lock_guard lock(queue->mutex);
    queue->waiting.emplace_back(work, context);
    queue->changed.notify_all();
}

void dispatch_release(dispatch_queue_t queue) {
    {
        const std::lock_guard lock(world().mutex);
        ++world().asked.released;
    }
    std::shared_ptr<FakeQueue> share;
    const std::lock_guard lock(queue->mutex);
    share = std::move(queue->creatorsShare);
    queue->isReleased = true;
    queue->changed.notify_all();
}

namespace vantor::fake_dispatcher {

Asked asked() {
    const std::lock_guard lock(world().mutex);
    return world().asked;
}

}  // namespace vantor::fake_dispatcher
