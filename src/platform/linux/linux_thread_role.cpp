#include "platform/native_machine.h"

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

namespace vantor {

namespace {

// Behind what the user does, yet not so far that a busy machine, the one people want to watch,
// starves its own monitor. On Linux the priority of "process 0" is that of the calling thread.
constexpr int utilityNiceness = 5;
constexpr std::size_t longestName = 15;

}  // namespace

void assumeUtilityRole(const std::string& label) {
    const auto dot = label.rfind('.');
    const std::string name = dot == std::string::npos ? label : label.substr(dot + 1);
    ::pthread_setname_np(::pthread_self(), name.substr(0, longestName).c_str());
    ::setpriority(PRIO_PROCESS, 0, utilityNiceness);
}

}  // namespace vantor
