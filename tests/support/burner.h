#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "support/live_child.h"

namespace vantor {

/// A process whose threads do nothing but spend processor time and keep books of it.
class Burner {
  public:
    static constexpr int maxThreads = 8;

    /// Returns once all threads are at work; at most `maxThreads`.
    explicit Burner(int threads);

    pid_t pid() const { return child_->pid(); }

    /// The processor seconds that the threads have got so far, each by its own clock.
    double spent() const;

    /// What the kernel charged to them up to its last tick, from /proc/PID/task/*/schedstat. Time
    /// that a hypervisor took from a virtual machine's processor is in it, and not in `spent()`.
    double charged() const;

  private:
    struct Books;
    struct Unmap {
        void operator()(Books* books) const;
    };

    std::unique_ptr<Books, Unmap> books_;  // shared with the process
    int threads_;
    std::optional<LiveChild> child_;
};

}  // namespace vantor
