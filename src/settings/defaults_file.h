#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "platform/main_loop.h"
#include "platform/published.h"
#include "platform/serial_queue.h"
#include "platform/shared_file.h"
#include "settings/defaults_exchange.h"
#include "settings/defaults_store.h"

namespace vantor {

/// Preferences in a small file that never blocks the program: it is read and written on a queue
/// that exists only while there is work. Main thread.
///
/// A value that was set is returned from then on. It is written by the next task, only the last
/// value of each key, one task at a time, and never before the file has been read. A failed write
/// is kept and tried again with the next change, after half a minute, and at the end.
class DefaultsFile : public DefaultsStore, public std::enable_shared_from_this<DefaultsFile> {
  public:
    static constexpr std::chrono::milliseconds readPatience{250};  ///< how long a start may wait
    static constexpr std::chrono::seconds retryInterval{30};
    static constexpr std::chrono::seconds slowness{2};  ///< after which a disk does not answer
    static constexpr std::chrono::seconds endPatience{3};

    struct Environment {
        std::shared_ptr<SharedFile> file;
        std::shared_ptr<MainLoop> mainLoop;
        std::shared_ptr<SerialQueueFactory> queues;
        std::string queueLabel;
    };

    /// Begins to read.
    static std::shared_ptr<DefaultsFile> open(Environment environment);

    DefaultsFile(const DefaultsFile&) = delete;
    DefaultsFile& operator=(const DefaultsFile&) = delete;
    ~DefaultsFile() override;

    /// Whether the file has been read within `limit` since it was opened, or could not be. Until it
    /// has, nothing is stored but what was set.
    bool waitForRead(std::chrono::milliseconds limit = readPatience);

    /// Called when the file has been read after the wait for it had ended.
    void setOnLateRead(std::function<void()> onLateRead) { onLateRead_ = std::move(onLateRead); }

    std::optional<Value> value(std::string_view key) const override;
    void setValue(std::string_view key, const Value& value) override;

    /// Why the last values are not in the file, as one sentence; empty while they are, or are being
    /// written.
    Published<std::string>& notSaved() { return notSaved_; }

    /// Tries to write what is not written yet.
    void tryAgain();

    /// Whether all is written within `limit`. For the end, when the main loop no longer runs; a
    /// task that is then still running is abandoned.
    bool waitForWrite(std::chrono::milliseconds limit);

  private:
    struct UnderWay;

    explicit DefaultsFile(Environment environment);
    bool hasUnsaved() const { return !waiting_.empty() || !sent_.empty(); }
    void begin(std::function<DefaultsOutcome(SharedFile&)> work);
    void beginWrite();
    bool waitForOutcome(std::chrono::steady_clock::time_point end) const;
    void takeUp();
    void takeUpFailure(const std::string& reason);
    void say(const std::string& reason);
    void watchSlowness();
    void cancel(MainLoop::TimerID& timer);

    Environment environment_;
    const std::chrono::steady_clock::time_point opened_ = std::chrono::steady_clock::now();
    DefaultsValues known_;    // to be in the file
    DefaultsValues sent_;     // on the way into it
    DefaultsValues waiting_;  // set since
    bool isKnown_ = false;
    bool isLate_ = false;
    std::shared_ptr<UnderWay> underWay_;  // at most one task
    std::unique_ptr<SerialQueue> queue_;  // while there is one
    std::function<void()> onLateRead_;
    Published<std::string> notSaved_{std::string()};
    MainLoop::TimerID retryTimer_ = 0;
    MainLoop::TimerID slownessTimer_ = 0;
};

}  // namespace vantor
