#pragma once

#include <QSocketNotifier>

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <memory>

#include "platform/file_descriptor.h"

namespace vantor {

/// SIGTERM, SIGINT and SIGHUP as an orderly request to end: one call on the main thread, whichever
/// thread the kernel has interrupted and however many of them arrive.
///
/// A signal that comes a while (`sameRequest`) after the first ends the process at once, with the
/// signal's own status, so that an end that hangs can be cut short by a second Ctrl-C; and so does
/// the watchdog, which the first one starts. One that comes sooner is the same request: a terminal
/// that closes and a service manager both send two.
///
/// A signal that is ignored when this object is made stays ignored (nohup). Main thread; one object
/// at a time; its destructor, which must not run within the call, restores the former handling.
/// Where no pipe can be made, the signals keep their former meaning, which ends the program as
/// well.
class TerminationSignals {
  public:
    static constexpr std::chrono::milliseconds usualSameRequest{300};

    explicit TerminationSignals(std::function<void()> onTermination,
                                std::chrono::milliseconds sameRequest = usualSameRequest);
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

    /// For threads whose system calls must not be interrupted: these signals go to other threads
    /// from now on.
    static void keepFromThisThread();

  private:
    void install(std::chrono::nanoseconds sameRequest);
    void read();

    static constexpr std::array<int, 3> numbers{SIGTERM, SIGINT, SIGHUP};

    std::function<void()> onTermination_;
    FileDescriptor readEnd_;
    FileDescriptor writeEnd_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::array<struct sigaction, numbers.size()> former_{};
};

}  // namespace vantor
