#include "platform/linux/confinement/call_filter.h"

#include <linux/audit.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace vantor {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t filteredArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t filteredArchitecture = AUDIT_ARCH_AARCH64;
#else
#error "the numbers of this architecture's system calls are not known here"
#endif

// x32 numbers its calls from here on, under the name of the 64-bit architecture. No call of
// another one has such a number.
constexpr std::uint32_t firstOfX32 = 0x4000'0000;

constexpr std::uint16_t filterLoad = BPF_LD | BPF_W | BPF_ABS;
constexpr std::uint16_t jumpIfEqual = BPF_JMP | BPF_JEQ | BPF_K;
constexpr std::uint16_t jumpIfAtLeast = BPF_JMP | BPF_JGE | BPF_K;
constexpr std::uint16_t jumpIfBit = BPF_JMP | BPF_JSET | BPF_K;
constexpr std::uint16_t filterAnswer = BPF_RET | BPF_K;

constexpr auto offsetOfNumber = static_cast<std::uint32_t>(offsetof(seccomp_data, nr));
constexpr auto offsetOfArchitecture = static_cast<std::uint32_t>(offsetof(seccomp_data, arch));

// Both architectures have the lower half of a word first.
std::uint32_t argumentOffset(const ArgumentTest& test) {
    return static_cast<std::uint32_t>(offsetof(seccomp_data, args)) + test.argument * 8;
}

std::uint32_t filterVerdict(int error, Denial denial) {
    if (denial == Denial::endsTheProcess && error != ENOSYS) return SECCOMP_RET_KILL_PROCESS;
    return SECCOMP_RET_ERRNO | (static_cast<std::uint32_t>(error) & SECCOMP_RET_DATA);
}

sock_filter filterLoading(std::uint32_t offset) {
    return {filterLoad, 0, 0, offset};
}

/// Goes on when it holds, else passes `ahead` instructions over.
sock_filter filterHolding(const ArgumentTest& test, std::uint8_t ahead) {
    switch (test.holds) {
        case ArgumentTest::Holds::whenEqual:
            return {jumpIfEqual, 0, ahead, test.value};
        case ArgumentTest::Holds::whenDifferent:
            return {jumpIfEqual, ahead, 0, test.value};
        case ArgumentTest::Holds::withoutTheBit:
            return {jumpIfBit, ahead, 0, test.value};
        case ArgumentTest::Holds::whenOtherProcess:
            break;
    }
    return {jumpIfEqual, ahead, 0, static_cast<std::uint32_t>(::getpid())};
}

}  // namespace

std::vector<sock_filter> makeCallFilter(std::span<const DeniedCall> denied, Denial denial) {
    std::vector<sock_filter> filter{
        filterLoading(offsetOfArchitecture),
        {jumpIfEqual, 1, 0, filteredArchitecture},
        {filterAnswer, 0, 0, filterVerdict(EPERM, denial)},
        filterLoading(offsetOfNumber),
        {jumpIfAtLeast, 0, 1, firstOfX32},
        {filterAnswer, 0, 0, filterVerdict(EPERM, denial)},
    };
    for (const DeniedCall& call : denied) {
        auto ahead = static_cast<std::uint8_t>(2 * call.tests.size() + 1);
        // What has looked at arguments has left one where the number was.
        if (!call.tests.empty()) ++ahead;
        filter.push_back({jumpIfEqual, 0, ahead, call.number});
        for (std::size_t i = 0; i < call.tests.size(); ++i) {
            filter.push_back(filterLoading(argumentOffset(call.tests[i])));
            const std::size_t left = 2 * (call.tests.size() - 1 - i) + 1;
            filter.push_back(filterHolding(call.tests[i], static_cast<std::uint8_t>(left)));
        }
        filter.push_back({filterAnswer, 0, 0, filterVerdict(call.error, denial)});
        if (!call.tests.empty()) filter.push_back(filterLoading(offsetOfNumber));
    }
    filter.push_back({filterAnswer, 0, 0, SECCOMP_RET_ALLOW});
    return filter;
}

bool installCallFilter(std::span<const sock_filter> filter) {
    // The kernel takes a filter only of who can gain no privileges any more.
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
    std::vector<sock_filter> instructions(filter.begin(), filter.end());
    const sock_fprog program{static_cast<unsigned short>(instructions.size()), instructions.data()};
    return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_TSYNC, &program) ==
           0;
}

}  // namespace vantor
