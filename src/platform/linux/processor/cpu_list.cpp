#include "platform/linux/processor/cpu_list.h"

#include <charconv>

namespace vantor {

namespace {

constexpr std::uint32_t cpuListProcessorLimit = 65536;

bool readNumber(std::string_view& text, std::uint32_t& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || number >= cpuListProcessorLimit) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

}  // namespace

std::optional<std::vector<std::uint32_t>> parseCPUList(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.remove_suffix(1);
    std::vector<std::uint32_t> numbers;
    while (!text.empty()) {
        std::uint32_t first = 0;
        if (!readNumber(text, first)) return std::nullopt;
        // The kernel's lists are in order; one that was not could name each processor many times.
        if (!numbers.empty() && first <= numbers.back()) return std::nullopt;
        std::uint32_t last = first;
        if (!text.empty() && text.front() == '-') {
            text.remove_prefix(1);
            if (!readNumber(text, last) || last < first) return std::nullopt;
        }
        for (std::uint32_t n = first; n <= last; ++n)
            numbers.push_back(n);
        if (text.empty()) break;
        if (text.front() != ',' || text.size() == 1) return std::nullopt;
        text.remove_prefix(1);
    }
    return numbers;
}

}  // namespace vantor
