#include "platform/macos/system/product_version.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>
#include <tuple>

namespace vantor {

std::optional<ProcessInfo::Version> parseProductVersion(std::string_view text) {
    std::array<int, 3> numbers{};
    std::size_t count = 0;
    while (true) {
        if (count == numbers.size() || text.starts_with('-')) return std::nullopt;
        const char* const end = text.data() + text.size();
        const auto [rest, error] = std::from_chars(text.data(), end, numbers[count]);
        if (error != std::errc{}) return std::nullopt;
        ++count;
        text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
        if (text.empty()) break;
        if (text.front() != '.') return std::nullopt;
        text.remove_prefix(1);
    }
    if (count < 2) return std::nullopt;
    return ProcessInfo::Version{numbers[0], numbers[1], numbers[2]};
}

bool isAtLeast(const ProcessInfo::Version& version, const ProcessInfo::Version& wanted) {
    return std::tie(version.major, version.minor, version.patch) >=
           std::tie(wanted.major, wanted.minor, wanted.patch);
}

}  // namespace vantor
