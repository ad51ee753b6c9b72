#include "platform/linux/confinement/linux_confinement.h"

#include <utility>

namespace vantor {

bool isDisplayOnTcp(const std::string& display) {
    const auto colon = display.rfind(':');
    if (colon == std::string::npos || display.starts_with('/')) return false;
    const std::string host = display.substr(0, colon);
    return !host.empty() && host != "unix" && !host.starts_with("unix/");
}

LinuxConfinement::LinuxConfinement(std::string display, Denial denial)
    : display_(std::move(display)), denial_(denial) {}

void LinuxConfinement::filterCalls(std::span<const DeniedCall> denied, const char* what) {
    if (installCallFilter(makeCallFilter(denied, denial_))) {
        state_.isConfined = true;
    } else {
        state_.missing.emplace_back(what);
    }
}

void LinuxConfinement::confineEarly() {
    std::vector<DeniedCall> denied(callsDeniedEarly().begin(), callsDeniedEarly().end());
    if (!isDisplayOnTcp(display_))
        denied.insert(denied.end(), callsDeniedWithLocalDisplay().begin(),
                      callsDeniedWithLocalDisplay().end());
    filterCalls(denied, "the filter of system calls");
}

void LinuxConfinement::confineForRunning(Listening listening) {
    std::vector<DeniedCall> denied(callsDeniedWhenRunning().begin(),
                                   callsDeniedWhenRunning().end());
    if (listening == Listening::isOver)
        denied.insert(denied.end(), callsDeniedAfterListening().begin(),
                      callsDeniedAfterListening().end());
    filterCalls(denied, "the filter for the time after the start");
}

}  // namespace vantor
