#include "platform/linux/memory/arc_stats.h"

#include <charconv>

namespace vantor {

namespace {

std::string_view takeWord(std::string_view& line) {
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    line.remove_prefix(first);
    const std::string_view word = line.substr(0, line.find_first_of(" \t"));
    line.remove_prefix(word.size());
    return word;
}

/// The number after the type in the rest of a line "name type data".
std::optional<std::uint64_t> readData(std::string_view line) {
    takeWord(line);
    const std::string_view word = takeWord(line);
    std::uint64_t data = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), data);
    if (error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
    if (!takeWord(line).empty()) return std::nullopt;
    return data;
}

}  // namespace

std::optional<ArcStats> ArcStats::parse(std::string_view text) {
    std::optional<std::uint64_t> size, minimum;
    for (auto lineEnd = text.find('\n'); lineEnd != std::string_view::npos;
         lineEnd = text.find('\n')) {
        std::string_view line = text.substr(0, lineEnd);
        text.remove_prefix(lineEnd + 1);
        const std::string_view name = takeWord(line);
        if (name == "size") size = readData(line);
        if (name == "c_min") minimum = readData(line);
    }
    if (!size || !minimum) return std::nullopt;
    return ArcStats{*size, *minimum};
}

}  // namespace vantor
