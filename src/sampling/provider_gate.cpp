#include "sampling/provider_gate.h"

#include <cmath>

namespace vantor {

bool ProviderGate::begin(double minimumInterval, bool force) {
    const double now = machine_->processInfo().systemUptime();
    const bool isUsable = minimumInterval > minInterval && std::isfinite(minimumInterval);
    const double interval = isUsable ? minimumInterval : minInterval;
    const std::lock_guard guard(lock_);
    if (isInvalidated_) return false;
    if (outstandingRuns_ >= 1) {
        if (!force || outstandingRuns_ != 1) return false;
        outstandingRuns_ = 2;
        return true;
    }
    if (!force && interval > now - lastStartUptime_) return false;
    outstandingRuns_ = 1;
    return true;
}

bool ProviderGate::startRun() {
    const std::lock_guard guard(lock_);
    if (isInvalidated_) {
        if (outstandingRuns_ > 0) --outstandingRuns_;
        return false;
    }
    lastStartUptime_ = machine_->processInfo().systemUptime();
    return true;
}

void ProviderGate::finish() {
    const std::lock_guard guard(lock_);
    if (outstandingRuns_ > 0) --outstandingRuns_;
}

void ProviderGate::invalidate() {
    const std::lock_guard guard(lock_);
    isInvalidated_ = true;
}

int ProviderGate::outstandingRuns() const {
    const std::lock_guard guard(lock_);
    return outstandingRuns_;
}

}  // namespace vantor
