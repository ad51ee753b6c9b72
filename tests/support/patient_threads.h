#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "support/joined_threads.h"

namespace vantor {

/// Threads that are asked something and may be late with the answer. Whoever asks does not wait for
/// ever; the threads are waited for when this goes, and by then what they want must be free again.
class PatientThreads {
  public:
    /// What the call gives on a thread of its own; absent when that takes longer than `limit`.
    template <class Call>
    auto ask(Call call, std::chrono::seconds limit = std::chrono::seconds(20)) {
        using Answer = std::invoke_result_t<Call>;
        auto promise = std::make_shared<std::promise<Answer>>();
        // Other than that of std::async, this future's end waits for nobody.
        std::future<Answer> answer = promise->get_future();
        threads_.start(
            [promise = std::move(promise), call = std::move(call)] { promise->set_value(call()); });
        const bool isThere = answer.wait_for(limit) == std::future_status::ready;
        return isThere ? std::optional<Answer>(answer.get()) : std::nullopt;
    }

  private:
    JoinedThreads threads_;
};

}  // namespace vantor
