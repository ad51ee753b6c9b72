#include "app/session/termination_signals.h"

#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <utility>

#include "platform/posix/end_watchdog.h"

namespace vantor {

namespace {

/// The state for the handler: a signal has no context argument.
struct Reached {
    std::atomic<int> writeEnd{-1};
    std::atomic<std::int64_t> firstAt{0};  // nanoseconds of the monotonic clock, 0 for not yet
    std::atomic<std::int64_t> sameRequest{0};
};
static_assert(std::atomic<int>::is_always_lock_free);
static_assert(std::atomic<std::int64_t>::is_always_lock_free);

Reached reached;

std::int64_t now() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec + 1;
}

// Async-signal-safe: it may interrupt an allocation.
void handle(int number) {
    const int formerError = errno;
    std::int64_t first = 0;
    const std::int64_t time = now();
    EndWatchdog::signalled(number);
    if (reached.firstAt.compare_exchange_strong(first, time)) {
        const char byte = 0;
        [[maybe_unused]] const auto written = ::write(reached.writeEnd.load(), &byte, 1);
    } else if (time - first >= reached.sameRequest.load()) {
        // Delivered as soon as this handler returns, which blocks it.
        std::signal(number, SIG_DFL);
        ::raise(number);
    }
    errno = formerError;
}

/// Neither inherited by other programs nor ever waited for.
bool prepare(const FileDescriptor& end) {
    return ::fcntl(end.get(), F_SETFD, FD_CLOEXEC) == 0 &&
           ::fcntl(end.get(), F_SETFL, O_NONBLOCK) == 0;
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> onTermination,
                                       std::chrono::milliseconds sameRequest)
    : onTermination_(std::move(onTermination)) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return;
    readEnd_ = FileDescriptor(ends[0]);
    writeEnd_ = FileDescriptor(ends[1]);
    if (!prepare(readEnd_) || !prepare(writeEnd_)) return;
    notifier_ = std::make_unique<QSocketNotifier>(readEnd_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { read(); });
    install(sameRequest);
}

TerminationSignals::~TerminationSignals() {
    if (!notifier_) return;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        ::sigaction(numbers[i], &former_[i], nullptr);
    reached.writeEnd = -1;
}

void TerminationSignals::install(std::chrono::nanoseconds sameRequest) {
    reached.firstAt = 0;
    reached.sameRequest = sameRequest.count();
    reached.writeEnd = writeEnd_.get();
    struct sigaction action {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    // Macros on some systems: so without the colons.
    sigemptyset(&action.sa_mask);
    for (const int number : numbers)
        sigaddset(&action.sa_mask, number);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        ::sigaction(numbers[i], nullptr, &former_[i]);
        if (former_[i].sa_handler != SIG_IGN) ::sigaction(numbers[i], &action, nullptr);
    }
}

void TerminationSignals::read() {
    char byte = 0;
    if (::read(readEnd_.get(), &byte, 1) != 1) return;
    if (onTermination_) onTermination_();
}

void TerminationSignals::keepFromThisThread() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : numbers)
        sigaddset(&set, number);
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

}  // namespace vantor
