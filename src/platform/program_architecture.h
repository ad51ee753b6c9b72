#pragma once

#include <string_view>

namespace vantor {

/// The processor architecture that this program was built for; the machine's own may be another.
inline constexpr std::string_view programArchitecture =
#if defined(__aarch64__) || defined(_M_ARM64)
    "arm64";
#elif defined(__x86_64__) || defined(_M_X64)
    "x86_64";
#elif defined(__i386__)
    "i386";
#elif defined(__arm__)
    "arm";
#elif defined(__riscv) && __riscv_xlen == 64
    "riscv64";
#elif defined(__powerpc64__) && defined(__LITTLE_ENDIAN__)
    "ppc64le";
#elif defined(__powerpc64__)
    "ppc64";
#elif defined(__s390x__)
    "s390x";
#elif defined(__loongarch64)
    "loongarch64";
#else
    "unknown";
#endif

}  // namespace vantor
