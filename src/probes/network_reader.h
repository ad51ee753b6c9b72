#pragma once

#include <memory>

#include "model/network_stats.h"
#include "platform/machine.h"

namespace vantor {

/// Turns the interfaces' byte counters and addresses into rates and rows. One thread at a time.
class NetworkReader {
  public:
    explicit NetworkReader(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    /// One sample; `uptime` is the monotonic uptime in seconds. Null when there is none this time:
    /// on the first read after creation or reset, when the platform does not answer, and when the
    /// primary interface's rates could not be measured. The record stays the reader's own and holds
    /// until the next read.
    const NetworkStats* read(bool includePointToPointInterfaces, double uptime);

    /// Forgets the counters seen so far: the next read measures no rate.
    void resetDeltas();

  private:
    std::shared_ptr<Machine> machine_;
    NetworkStats stats_;
};

}  // namespace vantor
