#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "support/joined_threads.h"

namespace vantor {

/// Threads that run a call and may be late with its result. The caller does not wait for ever; the
/// threads are joined by the destructor, and by then what they wait for must be available.
class PatientThreads {
  public:
    /// Returns the call's result, from a thread of its own; absent when that takes longer than
    /// `limit`.
    template <class Call>
    auto ask(Call call, std::chrono::seconds limit = std::chrono::seconds(20)) {
        using Answer = std::invoke_result_t<Call>;
        auto promise = std::make_shared<std::promise<Answer>>();
        // Unlike that of std::async, this future's destructor does not wait.
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
