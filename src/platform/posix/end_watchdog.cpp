#include "platform/posix/end_watchdog.h"

#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace vantor {

namespace {

constexpr int nobodyEnds = 0;
constexpr int userEnds = -1;

/// What a handler knows is what it finds here: a signal brings no object along.
struct EndingState {
    std::atomic<unsigned> patience{0};  // seconds; none without an object
    std::atomic<int> by{nobodyEnds};    // or userEnds, or the number of a signal
    struct sigaction former {};         // of SIGALRM
};
static_assert(std::atomic<unsigned>::is_always_lock_free);
static_assert(std::atomic<int>::is_always_lock_free);

EndingState endingState;

// Only what is safe in the midst of anything.
void endNow(int) {
    const int by = endingState.by.load();
    if (by == nobodyEnds) return;  // stopped just before it came
    if (by == userEnds) ::_exit(EXIT_FAILURE);
    std::signal(by, SIG_DFL);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, by);
    // The thread that the kernel has chosen for this may be one that is kept from it.
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    ::raise(by);
    ::_exit(EXIT_FAILURE);
}

}  // namespace

EndWatchdog::EndWatchdog(std::chrono::seconds patience) {
    struct sigaction action {};
    action.sa_handler = endNow;
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGALRM, &action, &endingState.former);
    // A blocked signal is inherited from the parent process, and by threads.
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGALRM);
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    endingState.patience = static_cast<unsigned>(patience.count());
}

EndWatchdog::~EndWatchdog() {
    if (endingState.by.load() != nobodyEnds) return;
    endingState.patience = 0;
    ::sigaction(SIGALRM, &endingState.former, nullptr);
}

void EndWatchdog::signalled(int number) noexcept {
    const unsigned patience = endingState.patience.load();
    if (patience == 0) return;
    int found = endingState.by.load();
    while (found <= 0) {
        if (!endingState.by.compare_exchange_weak(found, number)) continue;
        if (found == nobodyEnds) ::alarm(patience);
        return;
    }
}

void EndWatchdog::ending() {
    int nobody = nobodyEnds;
    if (endingState.by.compare_exchange_strong(nobody, userEnds))
        ::alarm(endingState.patience.load());
}

void EndWatchdog::goesOn() {
    int user = userEnds;
    if (!endingState.by.compare_exchange_strong(user, nobodyEnds)) return;
    ::alarm(0);
    // One that came in between has had its timer stopped.
    if (endingState.by.load() != nobodyEnds) ::alarm(endingState.patience.load());
}

}  // namespace vantor
