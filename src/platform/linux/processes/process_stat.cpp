#include "platform/linux/processes/process_stat.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vantor {

namespace {

// The fields after the name, counted from the state (the third of the line) on.
constexpr std::size_t flagsField = 6;
constexpr std::size_t userField = 11;
constexpr std::size_t systemField = 12;
constexpr std::size_t startField = 19;
constexpr std::size_t residentField = 21;
constexpr std::size_t processStatFieldCount = 22;

constexpr std::uint64_t kernelThreadFlag = 0x00200000;  // PF_KTHREAD of the kernel's sched.h

std::string_view takeStatField(std::string_view& text) {
    const auto first = text.find_first_not_of(" \n");
    if (first == std::string_view::npos) return {};
    text.remove_prefix(first);
    const auto end = std::min(text.find_first_of(" \n"), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end);
    return field;
}

bool readNumber(std::string_view digits, std::uint64_t& number) {
    const char* const end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    return !digits.empty() && error == std::errc{} && rest == end;
}

}  // namespace

std::optional<ProcessStat> ProcessStat::parse(std::string_view text) {
    const auto open = text.find('(');
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    ProcessStat stat;
    stat.name = text.substr(open + 1, close - open - 1);
    std::string_view rest = text.substr(close + 1);
    // A line that was cut may end inside a number, which would then be a smaller one.
    if (rest.find('\n') == std::string_view::npos) return std::nullopt;
    std::array<std::string_view, processStatFieldCount> fields;
    for (std::string_view& field : fields)
        field = takeStatField(rest);
    std::uint64_t flags = 0;
    std::uint64_t resident = 0;
    if (!readNumber(fields[flagsField], flags) || !readNumber(fields[userField], stat.userTicks) ||
        !readNumber(fields[systemField], stat.systemTicks) ||
        !readNumber(fields[startField], stat.startTicks)) {
        return std::nullopt;
    }
    // The kernel writes this one with a sign, and on some kernels it falls below zero for a moment.
    std::string_view pages = fields[residentField];
    const bool isNegative = pages.starts_with('-');
    if (isNegative) pages.remove_prefix(1);
    if (!readNumber(pages, resident)) return std::nullopt;
    stat.residentPages = isNegative ? 0 : resident;
    stat.isKernelThread = (flags & kernelThreadFlag) != 0;
    return stat;
}

std::optional<std::uint64_t> parseResidentPages(std::string_view statm) {
    if (statm.find('\n') == std::string_view::npos) return std::nullopt;
    takeStatField(statm);
    std::uint64_t pages = 0;
    return readNumber(takeStatField(statm), pages) ? std::optional(pages) : std::nullopt;
}

}  // namespace vantor
