#pragma once

#include <limits>
#include <memory>
#include <mutex>

#include "platform/machine.h"

namespace vantor {

/// Decides whether a provider may be read now, so that slow probes never pile up: one run at a time
/// and at most one forced run waiting behind it.
///
/// Any thread. The lock is held for the few instructions of each call, never while a probe runs.
/// Every admitted run must end with finish(), or with startRun() returning false.
class ProviderGate {
  public:
    /// No interval is shorter than this many seconds; one that is infinite or not a number counts
    /// as this too, so that it cannot block a provider for ever.
    static constexpr double minInterval = 0.1;

    explicit ProviderGate(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    /// Asks for a run. An unforced one is refused while another is in flight, and within
    /// `minimumInterval` seconds of the last start; a forced one only when one is waiting already.
    bool begin(double minimumInterval, bool force);

    /// The admitted run reached the head of its queue. Returns false when the gate is invalidated:
    /// the run is then over. Time spent waiting in the queue does not count against the interval.
    bool startRun();

    /// The run is over, its completion included.
    void finish();

    /// Nothing is admitted from now on, and waiting runs skip their work.
    void invalidate();

    /// Runs admitted and not over: 0, 1, or 2 (one running, one forced waiting).
    int outstandingRuns() const;

  private:
    std::shared_ptr<Machine> machine_;
    mutable std::mutex lock_;
    int outstandingRuns_ = 0;
    // The first request of a provider passes whatever its interval.
    double lastStartUptime_ = std::numeric_limits<double>::lowest();
    bool isInvalidated_ = false;
};

}  // namespace vantor
