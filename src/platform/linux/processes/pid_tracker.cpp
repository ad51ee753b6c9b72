#include "platform/linux/processes/pid_tracker.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <iterator>

namespace vantor {

namespace {

constexpr double listingPeriod = 30.0;
// After a longer pause the identifiers may have gone round unnoticed.
constexpr double maxPause = 2.5;
// Looking at one identifier costs about a fourth of what listing one process does.
constexpr std::size_t fewCandidates = 64;
// So many processes may be in the making at one moment.
constexpr std::int32_t inTheMaking = 16;

/// The kernel answers a thread that asks for the process clock of its own identifier.
bool isAskingThread(std::int32_t pid) {
    return pid == ::gettid() && pid != ::getpid();
}

}  // namespace

PIDTracker::PIDTracker(const LinuxRoots& roots, std::shared_ptr<ProcessClocks> clocks)
    : proc_(::open(roots.proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      lastPIDFile_(roots.proc / "sys/kernel/ns_last_pid"),
      clocks_(std::move(clocks)) {}

std::optional<std::int32_t> PIDTracker::lastPID() {
    const auto text = clocks_ ? lastPIDFile_.read() : std::nullopt;
    if (!text) return std::nullopt;
    std::int32_t pid = 0;
    const auto [rest, error] = std::from_chars(text->data(), text->data() + text->size(), pid);
    const bool isWhole = rest != text->data() + text->size() && *rest == '\n';
    return error == std::errc{} && isWhole && pid > 0 ? std::optional(pid) : std::nullopt;
}

bool PIDTracker::update(double now, std::span<const std::int32_t> gone) {
    const bool followed = tryToFollow(now, gone);
    updatedUptime_ = now;
    return followed || list(now);
}

bool PIDTracker::list(double now) {
    // Asked before the listing: who is born meanwhile is then looked for again the next time, and
    // so is who had an identifier but was not there yet.
    lastSeen_ = seenBefore_ = lastPID();
    if (seenBefore_) seenBefore_ = std::max(*seenBefore_ - inTheMaking, 0);
    followedFrom_.reset();
    listedUptime_ = now;
    ++listings_;
    if (!listing_.read(proc_)) {
        lastSeen_.reset();
        pids_.clear();
        return false;
    }
    pids_.assign(listing_.pids().begin(), listing_.pids().end());
    return true;
}

bool PIDTracker::tryToFollow(double now, std::span<const std::int32_t> gone) {
    if (!lastSeen_ || !seenBefore_ || now - listedUptime_ >= listingPeriod ||
        now - updatedUptime_ > maxPause) {
        return false;
    }
    const auto last = lastPID();
    if (!last || *last < *lastSeen_ || *lastSeen_ < *seenBefore_) return false;
    const auto candidates = static_cast<std::size_t>(*last - *seenBefore_);
    if (candidates > std::max(fewCandidates, pids_.size() / 4)) return false;
    nextPIDs_.clear();
    std::set_difference(pids_.begin(), pids_.end(), gone.begin(), gone.end(),
                        std::back_inserter(nextPIDs_));
    born_.clear();
    for (std::int32_t pid = *seenBefore_; pid < *last;) {
        ++pid;  // here, because the last one may be the largest of all
        if (std::binary_search(nextPIDs_.begin(), nextPIDs_.end(), pid)) continue;
        if (clocks_->read(pid) && !isAskingThread(pid)) born_.push_back(pid);
    }
    const auto middle = static_cast<std::ptrdiff_t>(nextPIDs_.size());
    nextPIDs_.insert(nextPIDs_.end(), born_.begin(), born_.end());
    std::inplace_merge(nextPIDs_.begin(), nextPIDs_.begin() + middle, nextPIDs_.end());
    pids_.swap(nextPIDs_);
    followedFrom_ = seenBefore_;
    seenBefore_ = lastSeen_;
    lastSeen_ = last;
    return true;
}

}  // namespace vantor
