#include "app/qt_main_loop.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimerEvent>

#include <algorithm>
#include <iterator>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace vantor {

namespace {

using Clock = std::chrono::steady_clock;

const auto wakeUp = static_cast<QEvent::Type>(QEvent::registerEventType());

// Waking up costs more than most tasks: a task posted so shortly before a timer waits for it. Such
// a delay is invisible, and the results of a tick are posted shortly before their commit.
constexpr std::chrono::milliseconds close{35};

}  // namespace

struct QtMainLoop::Inbox {
    std::mutex mutex;
    std::vector<Task> tasks;
    QObject* receiver = nullptr;  // none once the loop is gone
    bool isWaking = false;        // an event for them is on the way
    Clock::time_point nextTimer = Clock::time_point::max();

    /// Whether a timer is about to wake the loop anyway.
    bool isTimerClose() const { return nextTimer - Clock::now() <= close; }

    /// To be called with the mutex held.
    void wake() {
        if (isWaking || tasks.empty() || isTimerClose()) return;
        isWaking = true;
        // The toolkit takes ownership of posted events.
        QCoreApplication::postEvent(receiver, std::make_unique<QEvent>(wakeUp).release());
    }
};

/// Lives on the main thread: one event wakes it for all the tasks that wait by then.
class QtMainLoop::Receiver : public QObject {
  public:
    explicit Receiver(std::shared_ptr<Inbox> inbox) : inbox_(std::move(inbox)) {
        inbox_->receiver = this;
    }
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;
    ~Receiver() override {
        std::vector<Task> dropped;
        const std::lock_guard lock(inbox_->mutex);
        inbox_->receiver = nullptr;
        dropped.swap(inbox_->tasks);
    }

    TimerID start(std::chrono::milliseconds delay, Task task) {
        const auto id = static_cast<TimerID>(startTimer(delay, Qt::PreciseTimer));
        timers_.emplace(id, Timer{std::move(task), Clock::now() + delay});
        findNextTimer();
        return id;
    }

    void stop(TimerID timer) {
        const auto found = timers_.find(timer);
        if (found == timers_.end()) return;
        killTimer(static_cast<int>(timer));
        const Task dropped = std::move(found->second.task);  // ends after the entry is gone
        timers_.erase(found);
        findNextTimer();
        wakeForPosted();
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != wakeUp) return QObject::event(event);
        runPosted();
        return true;
    }

    void timerEvent(QTimerEvent* event) override {
        const auto found = timers_.find(static_cast<TimerID>(event->timerId()));
        if (found == timers_.end()) return;
        killTimer(event->timerId());
        Task task = std::move(found->second.task);
        timers_.erase(found);
        findNextTimer();
        runPosted();  // tasks that have waited for this timer, in order with it
        task();
    }

  private:
    struct Timer {
        Task task;
        Clock::time_point due;
    };

    void findNextTimer() {
        auto next = Clock::time_point::max();
        for (const auto& [id, timer] : timers_)
            next = std::min(next, timer.due);
        const std::lock_guard lock(inbox_->mutex);
        inbox_->nextTimer = next;
    }

    /// For tasks that have waited for a timer that was cancelled.
    void wakeForPosted() {
        const std::lock_guard lock(inbox_->mutex);
        inbox_->wake();
    }

    void runPosted() {
        {
            const std::lock_guard lock(inbox_->mutex);
            inbox_->isWaking = false;
            if (running_.empty()) {
                running_.swap(inbox_->tasks);
            } else {
                std::move(inbox_->tasks.begin(), inbox_->tasks.end(), std::back_inserter(running_));
                inbox_->tasks.clear();
            }
        }
        // A task may open a dialog, whose own loop then gets here again: it continues where this
        // one has stopped, in the order posted, and leaves nothing for this one.
        while (next_ < running_.size()) {
            Task task = std::move(running_[next_++]);
            task();
        }
        running_.clear();
        next_ = 0;
    }

    std::shared_ptr<Inbox> inbox_;
    std::vector<Task> running_;
    std::size_t next_ = 0;  // the first of them that has not run
    std::map<TimerID, Timer> timers_;
};

QtMainLoop::QtMainLoop()
    : inbox_(std::make_shared<Inbox>()), receiver_(std::make_unique<Receiver>(inbox_)) {}

QtMainLoop::~QtMainLoop() = default;

void QtMainLoop::post(Task task) {
    const std::lock_guard lock(inbox_->mutex);
    if (!inbox_->receiver) return;
    inbox_->tasks.push_back(std::move(task));
    inbox_->wake();
}

MainLoop::TimerID QtMainLoop::runAfter(std::chrono::nanoseconds delay, Task task) {
    // Never early, and a little late on purpose: a provider's run starts a moment after its
    // request, and a tick exactly one interval after the last would find the gate still closed.
    constexpr std::chrono::milliseconds slack{2};
    const auto held = std::max(delay, std::chrono::nanoseconds::zero());
    return receiver_->start(std::chrono::ceil<std::chrono::milliseconds>(held) + slack,
                            std::move(task));
}

void QtMainLoop::cancel(TimerID timer) {
    receiver_->stop(timer);
}

}  // namespace vantor
