#include "platform/linux/processes/process_clocks.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <chrono>
#include <ctime>

#include "platform/time_units.h"

namespace vantor {

namespace {

// Of a larger number the clock's encoding loses the upper bits: that would be another process's.
constexpr std::int32_t largestEncodedPID = 0xfffffff;

/// The kernel's own encoding (posix-timers.h): the complemented pid above three bits, of which 2
/// means the scheduler's clock of the whole process. clock_getcpuclockid makes the same and asks
/// the kernel once more whether the process is there.
constexpr clockid_t clockOf(std::int32_t pid) {
    return static_cast<clockid_t>((~static_cast<std::uint32_t>(pid) << 3) | 2U);
}

class LiveProcessClocks : public ProcessClocks {
  public:
    std::optional<std::uint64_t> read(std::int32_t pid) override {
        if (pid < 0 || pid > largestEncodedPID) return std::nullopt;
        // To the kernel 0 is the caller as well, but by another way than all others.
        const clockid_t clock = clockOf(pid == 0 ? ::getpid() : pid);
        struct timespec time = {};
        // The library would first look whether it can answer without the kernel, which it cannot.
        if (::syscall(SYS_clock_gettime, clock, &time) != 0) return std::nullopt;
        return static_cast<std::uint64_t>(time.tv_sec) * nanosecondsPerSecond +
               static_cast<std::uint64_t>(time.tv_nsec);
    }

    double now() override {
        // The standard library's steady clock is CLOCK_MONOTONIC here.
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    }
};

}  // namespace

std::shared_ptr<ProcessClocks> makeLiveProcessClocks() {
    return std::make_shared<LiveProcessClocks>();
}

}  // namespace vantor
