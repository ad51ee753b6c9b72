#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "platform/main_loop.h"
#include "platform/serial_queue.h"

namespace vantor {

/// Runs questions that the main thread must not wait for, as a disk may hang. Each has a thread of
/// its own, which is all that an unanswered one costs. Main thread.
class PatientQuestions {
  public:
    /// Keeps a question open: `onEnd` is not called after its destruction.
    using Question = std::shared_ptr<void>;

    static constexpr std::chrono::milliseconds usualPatience{2000};
    /// Questions in progress at the same time; one more counts as not answered.
    static constexpr int maxOutstanding = 16;

    PatientQuestions(std::shared_ptr<SerialQueueFactory> queues, std::shared_ptr<MainLoop> mainLoop,
                     std::chrono::milliseconds patience = usualPatience)
        : queues_(std::move(queues)), mainLoop_(std::move(mainLoop)), patience_(patience) {}

    /// `look` runs on the question's thread and must own what it needs. `onEnd` is called on the
    /// main thread, once, never from within this call: with the answer, or with none where there
    /// was no answer in time.
    template <class Answer>
    [[nodiscard]] Question ask(std::function<Answer()> look,
                               std::function<void(std::optional<Answer>)> onEnd) {
        auto open = std::make_shared<Open<Answer>>(mainLoop_, std::move(onEnd));
        const bool isTooMany = *out_ >= maxOutstanding;
        open->wait(isTooMany ? std::chrono::milliseconds{0} : patience_);
        if (isTooMany) return open;
        ++*out_;
        // The thread owns neither the question nor the loop, and may outlive both.
        queues_->makeQueue("com.kestrone.Vantor.save")
            ->submit([look = std::move(look), out = out_, weakLoop = std::weak_ptr(mainLoop_),
                      weak = std::weak_ptr(open)] {
                Answer answer = look();
                --*out;
                const auto loop = weakLoop.lock();
                if (!loop) return;
                loop->post([weak, answer = std::move(answer)]() mutable {
                    if (const auto asked = weak.lock()) asked->end(std::move(answer));
                });
            });
        return open;
    }

  private:
    template <class Answer>
    class Open : public std::enable_shared_from_this<Open<Answer>> {
      public:
        Open(std::shared_ptr<MainLoop> loop, std::function<void(std::optional<Answer>)> onEnd)
            : loop_(std::move(loop)), onEnd_(std::move(onEnd)) {}
        Open(const Open&) = delete;
        Open& operator=(const Open&) = delete;
        ~Open() { stop(); }

        void wait(std::chrono::milliseconds patience) {
            timer_ = loop_->runAfter(patience, [weak = this->weak_from_this()] {
                if (const auto self = weak.lock()) {
                    self->timer_.reset();
                    self->end(std::nullopt);
                }
            });
        }
        void end(std::optional<Answer> answer) {
            stop();
            // The callback may destroy the question, or ask the next one.
            if (auto onEnd = std::exchange(onEnd_, {})) onEnd(std::move(answer));
        }

      private:
        void stop() {
            if (timer_) loop_->cancel(*std::exchange(timer_, {}));
        }

        std::shared_ptr<MainLoop> loop_;
        std::function<void(std::optional<Answer>)> onEnd_;
        std::optional<MainLoop::TimerID> timer_;
    };

    std::shared_ptr<SerialQueueFactory> queues_;
    std::shared_ptr<MainLoop> mainLoop_;
    std::chrono::milliseconds patience_;
    std::shared_ptr<std::atomic<int>> out_ = std::make_shared<std::atomic<int>>(0);
};

}  // namespace vantor
