#pragma once

#include <sys/types.h>

#include <cstddef>
#include <vector>

namespace vantor::bench {

/// Processes that sleep until this object ends, or its process.
class SleepingChildren {
  public:
    explicit SleepingChildren(int count);
    SleepingChildren(const SleepingChildren&) = delete;
    SleepingChildren& operator=(const SleepingChildren&) = delete;
    ~SleepingChildren();

    /// Fewer than wanted where the system allows no more.
    std::size_t count() const { return pids_.size(); }

  private:
    std::vector<pid_t> pids_;
};

}  // namespace vantor::bench
