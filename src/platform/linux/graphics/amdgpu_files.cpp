#include "platform/linux/graphics/amdgpu_files.h"

#include <array>
#include <charconv>

#include "model/checked.h"

namespace vantor {

namespace {

std::optional<std::uint64_t> readCount(const SmallFile& file) {
    std::array<char, 32> buffer{};
    const auto text = file.read(buffer);
    return text ? parseCount(*text) : std::nullopt;
}

}  // namespace

std::optional<std::uint64_t> parseCount(std::string_view text) {
    std::uint64_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc{} || std::string_view(rest, end) != "\n") return std::nullopt;
    return count;
}

AMDGPUFiles::AMDGPUFiles(const std::filesystem::path& device, bool sharesMemory)
    : busy_(device / "gpu_busy_percent"),
      vram_{SmallFile(device / "mem_info_vram_used"), SmallFile(device / "mem_info_vram_total")} {
    if (!sharesMemory) return;
    gtt_.emplace(
        Memory{SmallFile(device / "mem_info_gtt_used"), SmallFile(device / "mem_info_gtt_total")});
}

bool AMDGPUFiles::readMemory(GraphicsFigures& figures) const {
    auto used = readCount(vram_.used);
    auto total = readCount(vram_.total);
    if (gtt_ && used && total) {
        const auto usedMore = readCount(gtt_->used);
        const auto totalMore = readCount(gtt_->total);
        // A part is not the sum.
        used = usedMore ? checkedSum(*used, *usedMore) : std::nullopt;
        total = totalMore ? checkedSum(*total, *totalMore) : std::nullopt;
    }
    if (!used || !total || *total == 0 || *used > *total) return false;
    figures.memoryUsed = used;
    figures.memoryTotal = total;
    return true;
}

bool AMDGPUFiles::read(GraphicsFigures& figures) const {
    const auto busy = readCount(busy_);
    const bool isBusyKnown = busy && *busy <= 100;
    if (isBusyKnown) figures.utilization = static_cast<double>(*busy);
    const bool hasMemory = vram_.used.isOpen() && vram_.total.isOpen();
    const bool isMemoryKnown = !hasMemory || readMemory(figures);
    return (isBusyKnown || !busy_.isOpen()) && isMemoryKnown;
}

}  // namespace vantor
