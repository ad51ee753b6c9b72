#pragma once

#include <thread>
#include <utility>
#include <vector>

namespace vantor {

/// Threads whose end is waited for when this goes: what std::jthread does, which not every C++
/// library has.
class JoinedThreads {
  public:
    JoinedThreads() = default;
    JoinedThreads(const JoinedThreads&) = delete;
    JoinedThreads& operator=(const JoinedThreads&) = delete;
    ~JoinedThreads() {
        for (std::thread& thread : threads_)
            thread.join();
    }

    template <class Work>
    void start(Work work) {
        threads_.emplace_back(std::move(work));
    }

  private:
    std::vector<std::thread> threads_;
};

}  // namespace vantor
