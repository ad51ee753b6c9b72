#include "processor_time.h"

#include <ctime>

namespace vantor::bench {

namespace {

double secondsOf(clockid_t clock) {
    struct timespec time = {};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

double processCPUSeconds() {
    return secondsOf(CLOCK_PROCESS_CPUTIME_ID);
}

double threadCPUSeconds() {
    return secondsOf(CLOCK_THREAD_CPUTIME_ID);
}

}  // namespace vantor::bench
