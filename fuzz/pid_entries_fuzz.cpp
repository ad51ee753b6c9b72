#include <algorithm>
#include <vector>

#include "platform/linux/processes/pid_listing.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto block = std::as_bytes(std::span(data, size));
    std::vector<std::int32_t> pids{-7};
    appendPIDs(block, pids);
    require(pids.front() == -7);
    constexpr std::size_t minEntry = 20;
    require((pids.size() - 1) * minEntry <= size);
    require(std::all_of(pids.begin() + 1, pids.end(), [](std::int32_t pid) { return pid > 0; }));
    // A block that is cut loses the end of its list, and changes nothing before it.
    const std::vector<std::byte> half(block.begin(), block.begin() + block.size() / 2);
    std::vector<std::int32_t> fewer{-7};
    appendPIDs(half, fewer);
    require(fewer.size() <= pids.size() && std::equal(fewer.begin(), fewer.end(), pids.begin()));
    return 0;
}
