#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "platform/linux/linux_machine.h"
#include "probes/memory_reader.h"

namespace vantor::live_memory_test {
namespace {

std::string outputOf(const char* command) {
    std::string output;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command, "r"), ::pclose);
    if (!pipe) return output;
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get()))
        output.append(buffer.data(), count);
    return output;
}

/// The same figures by another pipeline: `free -b`.
struct Free {
    std::uint64_t total = 0;
    std::uint64_t used = 0;

    static std::optional<Free> ask() {
        std::istringstream output(outputOf("LC_ALL=C free -b 2>/dev/null"));
        for (std::string line; std::getline(output, line);) {
            std::istringstream words(line);
            std::string name;
            Free free;
            if (words >> name >> free.total >> free.used && name == "Mem:") return free;
        }
        return std::nullopt;
    }
};

/// Why the two roads may differ here; empty where they must not.
std::string reasonToDiffer() {
    const std::string version = outputOf("free -V 2>/dev/null");
    // Before its version 4, `free` had the caches alone taken off what is used.
    if (version.find("procps-ng 4") == std::string::npos) return "there is no free of procps 4";
    if (std::filesystem::exists("/proc/spl/kstat/zfs/arcstats")) {
        return "free counts the cache of ZFS as used";
    }
    return {};
}

TEST(LiveMemory, IsWhatFreeSays) {
    if (const std::string reason = reasonToDiffer(); !reason.empty()) GTEST_SKIP() << reason;
    MemoryReader reader(std::make_shared<LinuxMachine>());
    // Other programs take and give memory meanwhile: the figure lies between a reading before and
    // one after, or hardly outside; a larger jump is tried again.
    bool agrees = false;
    for (int attempt = 0; attempt < 20 && !agrees; ++attempt) {
        const auto before = reader.read();
        const auto free = Free::ask();
        const auto after = reader.read();
        ASSERT_TRUE(before && free && after);
        ASSERT_EQ(before->totalBytes, free->total);
        const auto [low, high] = std::minmax(before->usedBytes, after->usedBytes);
        const std::uint64_t margin = free->used / 200;
        agrees = low <= free->used + margin && free->used <= high + margin;
        if (!agrees) {
            std::printf("free: %ju, the reader: %ju and %ju\n", std::uintmax_t{free->used},
                        std::uintmax_t{before->usedBytes}, std::uintmax_t{after->usedBytes});
        }
    }
    EXPECT_TRUE(agrees);
}

TEST(LiveMemory, AddsUp) {
    MemoryReader reader(std::make_shared<LinuxMachine>());
    const auto stats = reader.read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->usedBytes + stats->availableBytes, stats->totalBytes);
    EXPECT_GT(stats->usedBytes, 0U);
    EXPECT_LT(stats->usedBytes, stats->totalBytes);
    EXPECT_LE(stats->cachedBytes, stats->availableBytes);
    EXPECT_EQ(stats->totalBytes % 1024, 0U);
}

}  // namespace
}  // namespace vantor::live_memory_test
