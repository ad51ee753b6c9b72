#include "platform/linux/graphics/amdgpu_ids.h"

#include <charconv>

#include "platform/linux/files/trimmed.h"

namespace vantor {

namespace {

/// Takes the front up to the next comma.
std::optional<std::string_view> takeUpToComma(std::string_view& line) {
    const auto comma = line.find(',');
    if (comma == std::string_view::npos) return std::nullopt;
    const std::string_view field = trimmed(line.substr(0, comma));
    line.remove_prefix(comma + 1);
    return field;
}

template <class Number>
std::optional<Number> parseHex(const std::optional<std::string_view>& text) {
    if (!text || text->empty()) return std::nullopt;
    Number number = 0;
    const char* const end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data(), end, number, 16);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

}  // namespace

std::optional<std::string> findAMDGPUName(std::string_view text, std::uint16_t device,
                                          std::optional<std::uint8_t> revision) {
    std::optional<std::string_view> common;
    while (!text.empty()) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos) break;  // cut
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (line.starts_with('#')) continue;
        if (parseHex<std::uint16_t>(takeUpToComma(line)) != device) continue;
        const auto listed = parseHex<std::uint8_t>(takeUpToComma(line));
        const std::string_view name = trimmed(line);
        if (!listed || name.empty()) continue;
        if (revision && listed == revision) return std::string(name);
        if (revision) continue;
        if (common && *common != name) return std::nullopt;
        common = name;
    }
    if (!common) return std::nullopt;
    return std::string(*common);
}

}  // namespace vantor
