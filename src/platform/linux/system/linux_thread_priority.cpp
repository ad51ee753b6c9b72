#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

#include "platform/native_machine.h"

namespace vantor {

namespace {

// Behind what the user does, yet not so far that a busy machine, the one people want to watch,
// starves its own monitor.
constexpr std::int32_t utilityNiceness = 5;

// A probe needs the processor rarely and briefly, but soon: a run that starts late is a tick that
// is refused. Since Linux 6.12 a thread may ask for short slices, which are scheduled earlier at no
// larger share; older kernels ignore it.
constexpr std::uint64_t sliceNanoseconds = 100'000;

constexpr std::size_t maxThreadNameLength = 15;

// The C library has no wrapper for the call, nor its structure.
struct SchedulingAttributes {
    std::uint32_t size = 48;
    std::uint32_t policy = 0;  // the ordinary one
    std::uint64_t flags = 0;
    std::int32_t nice = 0;
    std::uint32_t priority = 0;
    std::uint64_t runtime = 0;
    std::uint64_t deadline = 0;
    std::uint64_t period = 0;
};

}  // namespace

void setUtilityPriority(const std::string& label) {
    const auto dot = label.rfind('.');
    const std::string name = dot == std::string::npos ? label : label.substr(dot + 1);
    ::pthread_setname_np(::pthread_self(), name.substr(0, maxThreadNameLength).c_str());
    SchedulingAttributes attributes;
    attributes.nice = utilityNiceness;
    attributes.runtime = sliceNanoseconds;
    ::syscall(SYS_sched_setattr, 0, &attributes, 0U);
}

}  // namespace vantor
