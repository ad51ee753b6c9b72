#include <unistd.h>

#include <cstring>

#include "platform/linux/processes/process_clocks.h"

#include "require.h"

/// The kernel's own clocks, asked for any number as a process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto clocks = makeLiveProcessClocks();
    const double began = clocks->now();
    const auto before = clocks->read(0);
    require(before.has_value() && clocks->read(::getpid()) >= before);
    std::int32_t pid = 0;
    for (; size >= sizeof pid; data += sizeof pid, size -= sizeof pid) {
        std::memcpy(&pid, data, sizeof pid);
        const auto time = clocks->read(pid);
        // What has no number is no process, and nobody has spent a thousand years.
        if (pid < 0) require(!time);
        if (time) require(*time / 1'000'000'000 / 86'400 / 365 < 1000);
    }
    require(clocks->read(0) >= before && clocks->now() >= began);
    return 0;
}
