#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/files/small_file.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// The memory that compressed block devices take: mem_used_total, the third number of
/// /sys/block/zram*/mm_stat (https://docs.kernel.org/admin-guide/blockdev/zram.html). One thread at
/// a time.
class ZramDevices {
  public:
    explicit ZramDevices(const LinuxRoots& roots) : folder_(roots.sys / "block") {}

    /// Bytes that all of them together take. The devices are looked up only when the amount of
    /// swap has changed since the last call: they come and go with it.
    std::uint64_t usedBytes(std::optional<std::uint64_t> swapTotal);

  private:
    void find();

    std::filesystem::path folder_;
    std::vector<SmallFile> statistics_;
    std::optional<std::uint64_t> swapTotal_;
    bool wereFound_ = false;
};

/// mem_used_total of a mm_stat text; absent when malformed or cut. Pure.
std::optional<std::uint64_t> parseZramUsedBytes(std::string_view text);

}  // namespace vantor
