#pragma once

#include <chrono>

namespace vantor {

/// Ends the process a while after its end has begun, whatever hangs by then, the main thread in a
/// call of the kernel included: by a timer's signal (SIGALRM), which needs neither a thread nor
/// memory nor a descriptor.
///
/// A process that a signal asked to end ends with that signal's own status, as it would have
/// without any handling. An end that the user asked for and that hung has status 1: the last write
/// may be missing, and a script should be able to detect that.
///
/// Only a wait that the kernel lets no signal into is out of its reach. One object at a time, which
/// goes before the process's end only where none has begun: then it puts the former handling of
/// SIGALRM back. An end that has begun is watched to its end. No other code may use alarm().
class EndWatchdog {
  public:
    /// What is written last gets three seconds, and threads a moment; a second more for a machine
    /// that is busy, and the process is gone within five.
    static constexpr std::chrono::seconds usualPatience{4};

    explicit EndWatchdog(std::chrono::seconds patience = usualPatience);
    EndWatchdog(const EndWatchdog&) = delete;
    EndWatchdog& operator=(const EndWatchdog&) = delete;
    ~EndWatchdog();

    /// The end has begun, by that signal. May be called by handlers of signals, and before there
    /// is an object, when it does nothing. What began first counts.
    static void signalled(int number) noexcept;

    /// The end has begun, by the user's wish. Any thread but a handler of signals.
    void ending();

    /// The user's wish has come to nothing. An end by a signal goes on.
    void goesOn();
};

}  // namespace vantor
