#include "platform/linux/system/kernel_facts.h"

#include <array>
#include <charconv>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/memory/mem_info.h"

namespace vantor {

std::optional<std::uint64_t> readInstalledMemory(const LinuxRoots& roots) {
    const auto text = readKernelFile(roots.proc / "meminfo");
    const auto info = text ? MemInfo::parse(*text) : std::nullopt;
    if (!info) return std::nullopt;
    return info->total * 1024;
}

std::optional<std::string> readKernelRelease(const LinuxRoots& roots) {
    return readKernelText(roots.proc / "sys/kernel/osrelease");
}

std::optional<std::int32_t> readProcessLimit(const LinuxRoots& roots) {
    const auto text = readKernelText(roots.proc / "sys/kernel/pid_max");
    if (!text) return std::nullopt;
    std::int32_t limit = 0;
    const char* const end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data(), end, limit);
    if (error != std::errc{} || rest != end || limit <= 0) return std::nullopt;
    return limit;
}

std::optional<ProcessInfo::Version> parseKernelRelease(std::string_view release) {
    std::array<int, 3> numbers{};
    std::size_t count = 0;
    while (count < numbers.size() && !release.empty() && release.front() != '-') {
        const char* const end = release.data() + release.size();
        const auto [rest, error] = std::from_chars(release.data(), end, numbers[count]);
        if (error != std::errc{}) break;
        ++count;
        release.remove_prefix(static_cast<std::size_t>(rest - release.data()));
        if (release.empty() || release.front() != '.') break;
        release.remove_prefix(1);
    }
    if (count == 0) return std::nullopt;
    return ProcessInfo::Version{numbers[0], numbers[1], numbers[2]};
}

}  // namespace vantor
