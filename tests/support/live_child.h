#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

namespace vantor {

/// A process of this test's own. It runs `body`, then sleeps until this object ends it; it ends
/// with the test's process, too.
class LiveChild {
  public:
    explicit LiveChild(const std::function<void()>& body = {});
    LiveChild(const LiveChild&) = delete;
    LiveChild& operator=(const LiveChild&) = delete;
    ~LiveChild();

    /// One that runs another program, which has nothing to do.
    static std::function<void()> running(const std::string& sleepProgram);

    pid_t pid() const { return pid_; }

    /// Waits until the kernel says that it sleeps ('S'); false after ten seconds.
    bool waitUntilAsleep() const { return waitForState('S'); }

    /// The same, once it has become the program of that (short) name.
    bool waitUntilAsleepAs(const std::string& program) const;

    /// Ends it; what is left of it stays in the process table.
    bool becomeZombie() const;

  private:
    bool waitForState(char state) const;

    pid_t pid_ = -1;
};

/// All of a file of /proc/PID; empty when it cannot be read.
std::string processFile(pid_t pid, const std::string& name);

}  // namespace vantor
