#include "settings/defaults_file.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace vantor {

/// Shared by a task and the object that waits for it.
struct DefaultsFile::UnderWay {
    std::mutex mutex;
    std::condition_variable ended;
    std::optional<DefaultsOutcome> outcome;
};

std::shared_ptr<DefaultsFile> DefaultsFile::open(Environment environment) {
    struct Made : DefaultsFile {
        explicit Made(Environment given) : DefaultsFile(std::move(given)) {}
    };
    auto file = std::make_shared<Made>(std::move(environment));
    file->begin(readDefaults);
    return file;
}

DefaultsFile::DefaultsFile(Environment environment) : environment_(std::move(environment)) {}

DefaultsFile::~DefaultsFile() {
    cancel(retryTimer_);
    cancel(slownessTimer_);
}

void DefaultsFile::begin(std::function<DefaultsOutcome(SharedFile&)> work) {
    underWay_ = std::make_shared<UnderWay>();
    queue_ = environment_.queues->makeQueue(environment_.queueLabel);
    // A task that hangs outlives this object: it owns what it needs.
    queue_->submit([work = std::move(work), file = environment_.file, underWay = underWay_,
                    loop = environment_.mainLoop, self = weak_from_this()] {
        DefaultsOutcome outcome = work(*file);
        {
            const std::lock_guard lock(underWay->mutex);
            underWay->outcome = std::move(outcome);
        }
        underWay->ended.notify_all();
        loop->post([self] {
            if (const auto store = self.lock()) store->takeUp();
        });
    });
}

bool DefaultsFile::waitForOutcome(std::chrono::steady_clock::time_point end) const {
    std::unique_lock lock(underWay_->mutex);
    return underWay_->ended.wait_until(lock, end,
                                       [this] { return underWay_->outcome.has_value(); });
}

bool DefaultsFile::waitForRead(std::chrono::milliseconds limit) {
    if (isKnown_ || !underWay_) return true;
    if (waitForOutcome(opened_ + limit)) {
        takeUp();
        return true;
    }
    isLate_ = true;
    return false;
}

std::optional<DefaultsStore::Value> DefaultsFile::value(std::string_view key) const {
    for (const DefaultsValues* const values : {&waiting_, &sent_, &known_}) {
        if (const auto found = values->find(key); found != values->end()) return found->second;
    }
    return std::nullopt;
}

void DefaultsFile::setValue(std::string_view key, const Value& value) {
    waiting_.insert_or_assign(std::string(key), value);
    tryAgain();
    watchSlowness();
}

void DefaultsFile::tryAgain() {
    if (!underWay_ && !waiting_.empty()) beginWrite();
}

void DefaultsFile::beginWrite() {
    cancel(retryTimer_);
    sent_ = std::exchange(waiting_, {});
    begin([changes = sent_](SharedFile& file) { return mergeDefaults(file, changes); });
    watchSlowness();
}

void DefaultsFile::takeUp() {
    if (!underWay_) return;
    DefaultsOutcome outcome;
    {
        const std::lock_guard lock(underWay_->mutex);
        if (!underWay_->outcome) return;
        outcome = std::move(*underWay_->outcome);
    }
    underWay_ = nullptr;
    queue_ = nullptr;
    if (outcome.values) known_ = std::move(*outcome.values);
    if (outcome.error) {
        takeUpFailure(outcome.error->description);
    } else {
        sent_.clear();
        if (waiting_.empty()) {
            cancel(slownessTimer_);
            say({});
        }
        tryAgain();
    }
    if (isKnown_) return;
    isKnown_ = !outcome.error;
    const bool wasLate = std::exchange(isLate_, !isKnown_);
    if (isKnown_ && wasLate && onLateRead_) onLateRead_();
}

void DefaultsFile::takeUpFailure(const std::string& reason) {
    const bool hasChanged = !waiting_.empty();
    waiting_.merge(sent_);  // what was set since stays
    sent_.clear();
    if (waiting_.empty()) return;  // reading failed, and nothing is to be written
    if (hasChanged) {
        tryAgain();
        return;
    }
    say(reason);
    retryTimer_ = environment_.mainLoop->runAfter(retryInterval, [self = weak_from_this()] {
        const auto store = self.lock();
        if (!store) return;
        store->retryTimer_ = 0;
        store->tryAgain();
    });
}

void DefaultsFile::say(const std::string& reason) {
    if (reason != notSaved_.value()) notSaved_.set(reason);
}

void DefaultsFile::watchSlowness() {
    if (slownessTimer_) return;
    slownessTimer_ = environment_.mainLoop->runAfter(slowness, [self = weak_from_this()] {
        const auto store = self.lock();
        if (!store) return;
        store->slownessTimer_ = 0;
        if (store->underWay_ && store->hasUnsaved()) store->say("The disk does not answer.");
    });
}

void DefaultsFile::cancel(MainLoop::TimerID& timer) {
    if (timer) environment_.mainLoop->cancel(std::exchange(timer, 0));
}

bool DefaultsFile::waitForWrite(std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (underWay_) {
        if (!waitForOutcome(end)) return false;
        takeUp();
    }
    return !hasUnsaved();
}

}  // namespace vantor
