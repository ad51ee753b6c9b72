#pragma once

#include <span>
#include <string>

#include "platform/confinement.h"
#include "platform/linux/confinement/call_filter.h"

namespace vantor {

/// Two filters of system calls (seccomp). The second denies what only the start needs; both hold
/// for all present and later threads.
///
/// There is no limit to where files are written, although kernels have one (Landlock): a process
/// in such a domain can no longer ask which file another process runs and how it uses the graphics
/// device (/proc/PID/exe and fdinfo), which is what this program is for.
class LinuxConfinement : public Confinement {
  public:
    /// `display` is what DISPLAY tells.
    explicit LinuxConfinement(std::string display, Denial denial = Denial::isAnError);

    void confineEarly() override;
    void confineForRunning(Listening listening) override;
    ConfinementState state() const override { return state_; }

  private:
    void filterCalls(std::span<const DeniedCall> denied, const char* what);

    std::string display_;
    Denial denial_;
    ConfinementState state_;
};

/// Whether a display of that name is reached by an internet connection, be it to this machine.
bool isDisplayOnTcp(const std::string& display);

}  // namespace vantor
