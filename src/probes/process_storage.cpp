#include "probes/process_storage.h"

#include <algorithm>
#include <limits>

#include "model/checked.h"

namespace vantor {

namespace {

constexpr std::int64_t spareEntries = 64;
constexpr std::int64_t minTarget = 512;
constexpr std::size_t processStorageOversizeFactor = 4;
constexpr double processStoragePatience = 30.0;

/// The count and some to spare, within what is ever worth having.
std::size_t targetFor(std::int64_t count, std::int64_t maximum) {
    if (maximum < 1) return 0;
    const std::int64_t wanted = checkedSum(count, spareEntries).value_or(maximum);
    return static_cast<std::size_t>(std::min(std::max(wanted, minTarget), maximum));
}

std::size_t oversizeLimit(std::size_t target) {
    constexpr auto most = std::numeric_limits<std::size_t>::max();
    return target > most / processStorageOversizeFactor ? most
                                                        : target * processStorageOversizeFactor;
}

}  // namespace

std::size_t ProcessStorage::target(std::size_t active) const {
    return targetFor(std::max(lastListedPIDCount, static_cast<std::int64_t>(active)),
                     maximumPIDCapacity_);
}

bool ProcessStorage::isOversized(std::size_t limit) const {
    const auto largest =
        std::max({pidBuffer.size(), rawProcessBuffer.capacity(), activePIDBuffer.capacity(),
                  staleMetadataPIDBuffer.capacity(), previousCPUByPID.capacity(),
                  nextCPUByPID.capacity(), metadataByPID.capacity()});
    return largest > limit;
}

void ProcessStorage::trim(std::size_t active, double now) {
    const std::size_t wanted = target(active);
    const std::size_t limit = oversizeLimit(wanted);
    if (!isOversized(limit)) {
        scratchOversizeSinceUptime.reset();
        return;
    }
    if (!scratchOversizeSinceUptime || *scratchOversizeSinceUptime > now) {
        scratchOversizeSinceUptime = now;
        return;
    }
    if (now - *scratchOversizeSinceUptime < processStoragePatience) return;
    scratchOversizeSinceUptime.reset();
    giveBack(limit, wanted);
}

void ProcessStorage::giveBack(std::size_t limit, std::size_t wanted) {
    if (pidBuffer.size() > limit) pidBuffer = std::vector<std::int32_t>(wanted);
    if (rawProcessBuffer.capacity() > limit) rawProcessBuffer = std::vector<RawProcess>();
    if (activePIDBuffer.capacity() > limit) activePIDBuffer.reset();
    if (staleMetadataPIDBuffer.capacity() > limit) {
        staleMetadataPIDBuffer = std::vector<std::int32_t>();
    }
    if (nextCPUByPID.capacity() > limit) nextCPUByPID.reset();
    if (previousCPUByPID.capacity() > limit) previousCPUByPID.shrink(0);
    if (metadataByPID.capacity() > limit) metadataByPID.shrink(0);
}

void ProcessStorage::reset() {
    previousCPUByPID.reset();
    nextCPUByPID.reset();
    pidBuffer = std::vector<std::int32_t>();
    rawProcessBuffer = std::vector<RawProcess>();
    staleMetadataPIDBuffer = std::vector<std::int32_t>();
    activePIDBuffer.reset();
    lastListedPIDCount = 0;
    scratchOversizeSinceUptime.reset();
    const std::size_t wanted =
        targetFor(static_cast<std::int64_t>(metadataByPID.size()), maximumPIDCapacity_);
    if (metadataByPID.capacity() > oversizeLimit(wanted)) metadataByPID.shrink(0);
}

}  // namespace vantor
